#include "ui/screen.h"
