#include "documents/clients.h"
