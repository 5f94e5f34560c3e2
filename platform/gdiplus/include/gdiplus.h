#pragma once

/// @file
/// GDI+ as C++ classes over libgdiplus, under the names that the Windows SDK's
/// <gdiplus.h> gives them, so that one source compiles against both.
///
/// The conventions are the SDK's:
/// - each operation of a class is one call of the flat function of that purpose;
/// - an operation returns its Status, and an object keeps the last status that was not
///   Ok; GetLastStatus() tells it once and sets it back to Ok;
/// - an object whose creation failed holds a null native object and hands null on, so
///   that later calls fail with InvalidParameter and nothing else happens;
/// - a null object as an argument is handed on as null;
/// - objects of these classes are not copied; the value types (Color, Point, Rect) are.
///
/// Two things differ, because the platform does: wchar_t holds a whole code point here
/// and becomes UTF-16 at each call (gdiplus/text.h), and a value that a failing query
/// leaves unset is 0, where the SDK leaves it undefined.

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

// The SDK's programs use these types and macros without a namespace. Define
// GDIPLUS_NO_WINDOWS_TYPES where another library defines them as something else.
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
