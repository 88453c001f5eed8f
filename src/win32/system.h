#pragma once
// The system's own declarations, without the one of its names that the program has for itself.

#include <windows.h>

#undef MessageBox
