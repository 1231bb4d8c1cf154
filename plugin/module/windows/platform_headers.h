#pragma once

/// The platform's headers, as every source of ours includes them: without the macro that renames an
/// operation of the canvas.

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <oaidl.h>
#include <oleauto.h>

#undef TextOut
