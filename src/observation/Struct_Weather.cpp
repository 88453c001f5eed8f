#include "observation/Struct_Weather.h"
