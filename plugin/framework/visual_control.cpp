#include "plugin/framework/visual_control.h"
