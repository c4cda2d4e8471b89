#include "quarn_util.h"
