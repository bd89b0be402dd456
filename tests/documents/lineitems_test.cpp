#include "support/testsupport.h"
