#pragma once

#include <cstdint>

namespace Gdiplus {

enum Status {
    Ok = 0,
    GenericError = 1,
    InvalidParameter = 2,
    OutOfMemory = 3,
    ObjectBusy = 4,
    InsufficientBuffer = 5,
    NotImplemented = 6,
    Win32Error = 7,
    WrongState = 8,
    Aborted = 9,
    FileNotFound = 10,
    ValueOverflow = 11,
    AccessDenied = 12,
    UnknownImageFormat = 13,
    FontFamilyNotFound = 14,
    FontStyleNotFound = 15,
    NotTrueTypeFont = 16,
    UnsupportedGdiplusVersion = 17,
    GdiplusNotInitialized = 18,
    PropertyNotFound = 19,
    PropertyNotSupported = 20,
    ProfileNotFound = 21
};

enum Unit {
    UnitWorld = 0,
    UnitDisplay = 1,
    UnitPixel = 2,
    UnitPoint = 3,
    UnitInch = 4,
    UnitDocument = 5,
    UnitMillimeter = 6
};

enum FontStyle {
    FontStyleRegular = 0,
    FontStyleBold = 1,
    FontStyleItalic = 2,
    FontStyleBoldItalic = 3,
    FontStyleUnderline = 4,
    FontStyleStrikeout = 8
};

enum FillMode { FillModeAlternate = 0, FillModeWinding = 1 };

enum MatrixOrder { MatrixOrderPrepend = 0, MatrixOrderAppend = 1 };

enum DashStyle {
    DashStyleSolid = 0,
    DashStyleDash = 1,
    DashStyleDot = 2,
    DashStyleDashDot = 3,
    DashStyleDashDotDot = 4,
    DashStyleCustom = 5
};

enum StringAlignment {
    StringAlignmentNear = 0,
    StringAlignmentCenter = 1,
    StringAlignmentFar = 2
};

enum SmoothingMode {
    SmoothingModeInvalid = -1,
    SmoothingModeDefault = 0,
    SmoothingModeHighSpeed = 1,
    SmoothingModeHighQuality = 2,
    SmoothingModeNone = 3,
    SmoothingModeAntiAlias = 4
};

enum TextRenderingHint {
    TextRenderingHintSystemDefault = 0,
    TextRenderingHintSingleBitPerPixelGridFit = 1,
    TextRenderingHintSingleBitPerPixel = 2,
    TextRenderingHintAntiAliasGridFit = 3,
    TextRenderingHintAntiAlias = 4,
    TextRenderingHintClearTypeGridFit = 5
};

enum InterpolationMode {
    InterpolationModeInvalid = -1,
    InterpolationModeDefault = 0,
    InterpolationModeLowQuality = 1,
    InterpolationModeHighQuality = 2,
    InterpolationModeBilinear = 3,
    InterpolationModeBicubic = 4,
    InterpolationModeNearestNeighbor = 5,
    InterpolationModeHighQualityBilinear = 6,
    InterpolationModeHighQualityBicubic = 7
};

enum PixelOffsetMode {
    PixelOffsetModeInvalid = -1,
    PixelOffsetModeDefault = 0,
    PixelOffsetModeHighSpeed = 1,
    PixelOffsetModeHighQuality = 2,
    PixelOffsetModeNone = 3,
    PixelOffsetModeHalf = 4
};

enum ImageLockMode {
    ImageLockModeRead = 1,
    ImageLockModeWrite = 2,
    ImageLockModeUserInputBuf = 4
};

enum LineCap {
    LineCapFlat = 0,
    LineCapSquare = 1,
    LineCapRound = 2,
    LineCapTriangle = 3,
    LineCapNoAnchor = 0x10,
    LineCapSquareAnchor = 0x11,
    LineCapRoundAnchor = 0x12,
    LineCapDiamondAnchor = 0x13,
    LineCapArrowAnchor = 0x14,
    LineCapCustom = 0xFF
};

enum LineJoin {
    LineJoinMiter = 0,
    LineJoinBevel = 1,
    LineJoinRound = 2,
    LineJoinMiterClipped = 3
};

enum StringFormatFlags {
    StringFormatFlagsDirectionRightToLeft = 0x1,
    StringFormatFlagsDirectionVertical = 0x2,
    StringFormatFlagsNoFitBlackBox = 0x4,
    StringFormatFlagsDisplayFormatControl = 0x20,
    StringFormatFlagsNoFontFallback = 0x400,
    StringFormatFlagsMeasureTrailingSpaces = 0x800,
    StringFormatFlagsNoWrap = 0x1000,
    StringFormatFlagsLineLimit = 0x2000,
    StringFormatFlagsNoClip = 0x4000
};

enum StringTrimming {
    StringTrimmingNone = 0,
    StringTrimmingCharacter = 1,
    StringTrimmingWord = 2,
    StringTrimmingEllipsisCharacter = 3,
    StringTrimmingEllipsisWord = 4,
    StringTrimmingEllipsisPath = 5
};

enum CombineMode {
    CombineModeReplace = 0,
    CombineModeIntersect = 1,
    CombineModeUnion = 2,
    CombineModeXor = 3,
    CombineModeExclude = 4,
    CombineModeComplement = 5
};

enum FlushIntention { FlushIntentionFlush = 0, FlushIntentionSync = 1 };

enum ImageType { ImageTypeUnknown = 0, ImageTypeBitmap = 1, ImageTypeMetafile = 2 };

enum ImageCodecFlags {
    ImageCodecFlagsEncoder = 0x1,
    ImageCodecFlagsDecoder = 0x2,
    ImageCodecFlagsSupportBitmap = 0x4,
    ImageCodecFlagsSupportVector = 0x8,
    ImageCodecFlagsSeekableEncode = 0x10,
    ImageCodecFlagsBlockingDecode = 0x20,
    ImageCodecFlagsBuiltin = 0x10000,
    ImageCodecFlagsSystem = 0x20000,
    ImageCodecFlagsUser = 0x40000
};

enum EncoderParameterValueType {
    EncoderParameterValueTypeByte = 1,
    EncoderParameterValueTypeASCII = 2,
    EncoderParameterValueTypeShort = 3,
    EncoderParameterValueTypeLong = 4,
    EncoderParameterValueTypeRational = 5,
    EncoderParameterValueTypeLongRange = 6,
    EncoderParameterValueTypeUndefined = 7,
    EncoderParameterValueTypeRationalRange = 8
};

/// Number, bits per pixel and properties of a pixel format: in 0x21808, 24 bits (0x18) of
/// format number 8.
typedef std::int32_t PixelFormat;

constexpr PixelFormat PixelFormatUndefined = 0;
constexpr PixelFormat PixelFormatDontCare = 0;
constexpr PixelFormat PixelFormatIndexed = 0x00010000;
constexpr PixelFormat PixelFormatGDI = 0x00020000;
constexpr PixelFormat PixelFormatAlpha = 0x00040000;
constexpr PixelFormat PixelFormatPAlpha = 0x00080000;
constexpr PixelFormat PixelFormatExtended = 0x00100000;
constexpr PixelFormat PixelFormatCanonical = 0x00200000;
constexpr PixelFormat PixelFormat1bppIndexed = 0x00030101;
constexpr PixelFormat PixelFormat4bppIndexed = 0x00030402;
constexpr PixelFormat PixelFormat8bppIndexed = 0x00030803;
constexpr PixelFormat PixelFormat24bppRGB = 0x00021808;
constexpr PixelFormat PixelFormat32bppRGB = 0x00022009;
constexpr PixelFormat PixelFormat32bppARGB = 0x0026200A;
constexpr PixelFormat PixelFormat32bppPARGB = 0x000E200B;

/// Bits per pixel.
inline std::uint32_t GetPixelFormatSize(PixelFormat format) {
    return (static_cast<std::uint32_t>(format) >> 8) & 0xFF;
}
inline std::int32_t IsIndexedPixelFormat(PixelFormat format) {
    return (format & PixelFormatIndexed) != 0;
}
inline std::int32_t IsAlphaPixelFormat(PixelFormat format) {
    return (format & PixelFormatAlpha) != 0;
}

}  // namespace Gdiplus
