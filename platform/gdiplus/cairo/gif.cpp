#include <gif_lib.h>

#include <algorithm>
#include <cstring>

#include "cairo/codecs.h"

namespace engine {
namespace {

struct Input {
    FileBytes file;
    std::size_t at;
};

int ReadBytes(GifFileType* gif, GifByteType* to, int count) {
    Input& input = *static_cast<Input*>(gif->UserData);
    const std::size_t taken =
        std::min(input.file.size - input.at, static_cast<std::size_t>(count));
    std::memcpy(to, input.file.data + input.at, taken);
    input.at += taken;
    return static_cast<int>(taken);
}

int WriteBytes(GifFileType* gif, const GifByteType* from, int count) {
    auto& file = *static_cast<std::vector<BYTE>*>(gif->UserData);
    try {
        file.insert(file.end(), from, from + count);
    } catch (const std::bad_alloc&) {
        return 0;
    }
    return count;
}

void EndReading(GifFileType* gif) { DGifCloseFile(gif, nullptr); }
void EndWriting(GifFileType* gif) { EGifCloseFile(gif, nullptr); }

/// Leads to the first image of the file, and finds which colour is clear, -1 for none.
bool FindImage(GifFileType* gif, int& clear) {
    GifRecordType record = UNDEFINED_RECORD_TYPE;
    while (DGifGetRecordType(gif, &record) == GIF_OK) {
        if (record == IMAGE_DESC_RECORD_TYPE) {
            return DGifGetImageDesc(gif) == GIF_OK;
        }
        if (record != EXTENSION_RECORD_TYPE) {
            return false;
        }
        int code = 0;
        GifByteType* block = nullptr;
        if (DGifGetExtension(gif, &code, &block) != GIF_OK) {
            return false;
        }
        while (block != nullptr) {
            GraphicsControlBlock control;
            if (code == GRAPHICS_EXT_FUNC_CODE && block[0] >= 4 &&
                DGifExtensionToGCB(block[0], block + 1, &control) == GIF_OK) {
                clear = control.TransparentColor;
            }
            if (DGifGetExtensionNext(gif, &block) != GIF_OK) {
                return false;
            }
        }
    }
    return false;
}

ARGB ColorOf(const ColorMapObject& map, int index, int clear) {
    if (index == clear) {
        return 0;
    }
    if (index >= map.ColorCount) {
        return 0xFF000000;
    }
    const GifColorType& c = map.Colors[index];
    return 0xFF000000 | static_cast<ARGB>(c.Red) << 16 | static_cast<ARGB>(c.Green) << 8 |
           c.Blue;
}

/// Writes the image where it stands on the file's screen; what goes past it is left out.
bool ReadGifRows(GifFileType* gif, const ColorMapObject& map, int clear,
                 const Pixels& pixels) {
    const GifImageDesc& image = gif->Image;
    std::vector<GifPixelType> row(static_cast<std::size_t>(image.Width));
    const auto readRow = [&](int y) {
        if (DGifGetLine(gif, row.data(), image.Width) != GIF_OK) {
            return false;
        }
        if (image.Top + y < pixels.height) {
            auto* const colors = reinterpret_cast<ARGB*>(pixels.Row(image.Top + y));
            const int count = std::min(image.Width, pixels.width - image.Left);
            for (int x = 0; x < count; ++x) {
                colors[image.Left + x] =
                    ColorOf(map, row[static_cast<std::size_t>(x)], clear);
            }
        }
        return true;
    };
    // An interlaced image comes in four passes: its start and its step each.
    constexpr int passes[][2] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};
    if (image.Interlace) {
        for (const auto& pass : passes) {
            for (int y = pass[0]; y < image.Height; y += pass[1]) {
                if (!readRow(y)) {
                    return false;
                }
            }
        }
        return true;
    }
    for (int y = 0; y < image.Height; ++y) {
        if (!readRow(y)) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::unique_ptr<Bitmap> DecodeGif(FileBytes file) {
    Input input = {file, 0};
    const Owned<GifFileType, EndReading> gif(DGifOpen(&input, ReadBytes, nullptr));
    int clear = -1;
    if (gif == nullptr || !FindImage(gif.get(), clear)) {
        return nullptr;
    }
    const ColorMapObject* const map =
        gif->Image.ColorMap != nullptr ? gif->Image.ColorMap : gif->SColorMap;
    if (map == nullptr || gif->Image.Width <= 0 || gif->Image.Left < 0 ||
        gif->Image.Top < 0 || !IsDecodable(gif->SWidth, gif->SHeight)) {
        return nullptr;
    }
    auto bitmap = MakeBitmap(gif->SWidth, gif->SHeight, PixelFormat32bppARGB);
    if (bitmap == nullptr || !ReadGifRows(gif.get(), *map, clear, *bitmap->pixels)) {
        return nullptr;
    }
    return bitmap;
}

namespace {

/// The colours of the image in up to 255 of a palette's, and which of them each pixel
/// has. The last of 256 is kept for clear pixels.
bool Reduce(const Source& source, ColorMapObject& map, std::vector<BYTE>& indices) {
    const auto width = static_cast<std::size_t>(source.Width());
    const auto height = static_cast<std::size_t>(source.Height());
    std::vector<BYTE> red(width * height);
    std::vector<BYTE> green(width * height);
    std::vector<BYTE> blue(width * height);
    std::vector<BYTE> clear(width * height);
    std::vector<ARGB> colors(width);
    for (std::size_t y = 0; y < height; ++y) {
        source.Read(static_cast<INT>(y), colors.data());
        for (std::size_t x = 0; x < width; ++x) {
            const std::size_t i = y * width + x;
            red[i] = static_cast<BYTE>(colors[x] >> 16);
            green[i] = static_cast<BYTE>(colors[x] >> 8);
            blue[i] = static_cast<BYTE>(colors[x]);
            clear[i] = colors[x] >> 24 < 128;
        }
    }
    indices.resize(width * height);
    int count = 255;
    if (GifQuantizeBuffer(static_cast<unsigned>(width), static_cast<unsigned>(height),
                          &count, red.data(), green.data(), blue.data(), indices.data(),
                          map.Colors) != GIF_OK) {
        return false;
    }
    for (std::size_t i = 0; i < indices.size(); ++i) {
        indices[i] = clear[i] != 0 ? 255 : indices[i];
    }
    return true;
}

}  // namespace

bool EncodeGif(const Source& source, std::vector<BYTE>& file) {
    constexpr INT longestSide = 65535;
    const Owned<ColorMapObject, GifFreeMapObject> map(GifMakeMapObject(256, nullptr));
    std::vector<BYTE> indices;
    if (map == nullptr || source.Width() > longestSide || source.Height() > longestSide ||
        !Reduce(source, *map, indices)) {
        return false;
    }
    const Owned<GifFileType, EndWriting> gif(EGifOpen(&file, WriteBytes, nullptr));
    if (gif == nullptr) {
        return false;
    }
    EGifSetGifVersion(gif.get(), true);
    GraphicsControlBlock control = {};
    control.TransparentColor = source.HasAlpha() ? 255 : NO_TRANSPARENT_COLOR;
    GifByteType extension[4];
    EGifGCBToExtension(&control, extension);
    if (EGifPutScreenDesc(gif.get(), source.Width(), source.Height(), 8, 0, map.get()) !=
            GIF_OK ||
        EGifPutExtension(gif.get(), GRAPHICS_EXT_FUNC_CODE, 4, extension) != GIF_OK ||
        EGifPutImageDesc(gif.get(), 0, 0, source.Width(), source.Height(), false,
                         nullptr) != GIF_OK) {
        return false;
    }
    for (INT y = 0; y < source.Height(); ++y) {
        BYTE* const row = &indices[static_cast<std::size_t>(y) *
                                   static_cast<std::size_t>(source.Width())];
        if (EGifPutLine(gif.get(), row, source.Width()) != GIF_OK) {
            return false;
        }
    }
    return true;
}

}  // namespace engine
