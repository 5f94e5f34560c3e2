#pragma once

// The SDK's own header, after what it needs included first. Windows' headers define min
// and max as macros unless told not to, and the SDK's GDI+ header needs the functions.
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
//
#include <objidl.h>

#include <algorithm>

#ifdef __GNUC__
#pragma GCC system_header
#include_next <gdiplus.h>
#else
namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus
#pragma comment(lib, "gdiplus.lib")
#include <../um/gdiplus.h>
#endif

namespace Gdiplus {

/// The character of the flat functions.
typedef wchar_t FlatChar;

}  // namespace Gdiplus
