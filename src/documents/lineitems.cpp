#include "documents/lineitems.h"
