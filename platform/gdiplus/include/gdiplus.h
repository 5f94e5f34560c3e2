#pragma once

/// @file
/// GDI+ as C++ classes under the names that the Windows SDK's <gdiplus.h> gives them, so
/// that one source compiles against both.
///
/// The conventions are the SDK's:
/// - each operation of a class is one call of the flat function of that purpose;
/// - an operation returns its Status, and an object keeps the last status that was not
///   Ok; GetLastStatus() returns it once and resets it to Ok;
/// - an object whose creation failed holds a null native object and passes null on, so
///   that later calls fail with InvalidParameter and do nothing else;
/// - a null argument is passed on as null;
/// - objects of these classes cannot be copied; value types (Color, Point, Rect) can.
///
/// Two things differ: wchar_t holds a whole code point here and becomes UTF-16 at each
/// call (gdiplus/text.h), and a query that fails gives 0 where the SDK leaves the value
/// undefined.

#include "gdiplus/brush.h"
#include "gdiplus/codec.h"
#include "gdiplus/color.h"
#include "gdiplus/enums.h"
#include "gdiplus/flat.h"
#include "gdiplus/font.h"
#include "gdiplus/geometry.h"
#include "gdiplus/graphics.h"
#include "gdiplus/image.h"
#include "gdiplus/line_cap.h"
#include "gdiplus/matrix.h"
#include "gdiplus/path.h"
#include "gdiplus/pen.h"
#include "gdiplus/startup.h"
#include "gdiplus/string_format.h"
#include "gdiplus/text.h"
#include "gdiplus/types.h"

// Programs written for the SDK use these types and macros without a namespace. Define
// GDIPLUS_NO_WINDOWS_TYPES if another library declares them differently.
#ifndef GDIPLUS_NO_WINDOWS_TYPES
using Gdiplus::BOOL;
using Gdiplus::BYTE;
using Gdiplus::CLSID;
using Gdiplus::DWORD;
using Gdiplus::GUID;
using Gdiplus::INT;
using Gdiplus::LANGID;
using Gdiplus::PixelFormat;
using Gdiplus::PixelFormat1bppIndexed;
using Gdiplus::PixelFormat24bppRGB;
using Gdiplus::PixelFormat32bppARGB;
using Gdiplus::PixelFormat32bppPARGB;
using Gdiplus::PixelFormat32bppRGB;
using Gdiplus::PixelFormat4bppIndexed;
using Gdiplus::PixelFormat8bppIndexed;
using Gdiplus::PixelFormatAlpha;
using Gdiplus::PixelFormatDontCare;
using Gdiplus::PixelFormatIndexed;
using Gdiplus::PixelFormatUndefined;
using Gdiplus::UINT;
using Gdiplus::UINT16;
using Gdiplus::UINT32;
using Gdiplus::ULONG;
using Gdiplus::ULONG_PTR;
using Gdiplus::VOID;
using Gdiplus::WCHAR;
#ifndef TRUE
#define TRUE 1
#endif
#ifndef FALSE
#define FALSE 0
#endif
#ifndef LF_FACESIZE
#define LF_FACESIZE 32
#endif
#endif
