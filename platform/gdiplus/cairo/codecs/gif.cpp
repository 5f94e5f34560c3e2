#include <gif_lib.h>

#include <algorithm>
#include <cstring>
#include <map>

#include "cairo/codecs/codecs.h"

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

/// Advances to the first image of the file, and finds which colour is clear, -1 for none.
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

/// Writes the image at its place on the file's screen, clipped to it.
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
    // An interlaced image comes in four passes: start and step of each.
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

constexpr BYTE kClear = 255;  // the last index is kept for clear pixels

/// The image as indices of up to 255 colours: its own if it has no more, else those that
/// giflib finds nearest.
class Reduced {
public:
    Reduced(const Source& source, ColorMapObject& map)
        : indices(static_cast<std::size_t>(source.Width()) *
                  static_cast<std::size_t>(source.Height())),
          source_(source),
          map_(map),
          width_(static_cast<std::size_t>(source.Width())),
          height_(static_cast<std::size_t>(source.Height())) {}

    bool Find() { return TakeOwn() || TakeNearest(); }

    std::vector<BYTE> indices;

private:
    const Source& source_;
    ColorMapObject& map_;
    std::size_t width_;
    std::size_t height_;

    template <typename Use>
    void ForEach(Use use) const {
        std::vector<ARGB> colors(width_);
        for (std::size_t y = 0; y < height_; ++y) {
            source_.Read(static_cast<INT>(y), colors.data());
            for (std::size_t x = 0; x < width_; ++x) {
                use(y * width_ + x, colors[x]);
            }
        }
    }

    bool TakeOwn() {
        std::map<ARGB, BYTE> found;
        bool fits = true;
        ForEach([&](std::size_t i, ARGB color) {
            if (color >> 24 < 128) {
                indices[i] = kClear;
                return;
            }
            const auto index = static_cast<BYTE>(found.size());
            const auto [place, added] = found.emplace(color | 0xFF000000, index);
            indices[i] = place->second;
            if (added && found.size() < 256) {
                map_.Colors[index] = {static_cast<BYTE>(color >> 16),
                                      static_cast<BYTE>(color >> 8),
                                      static_cast<BYTE>(color)};
            } else if (added) {
                fits = false;
                found.erase(place);
            }
        });
        return fits;
    }

    bool TakeNearest() {
        std::vector<BYTE> red(indices.size());
        std::vector<BYTE> green(indices.size());
        std::vector<BYTE> blue(indices.size());
        std::vector<bool> clear(indices.size());
        ForEach([&](std::size_t i, ARGB color) {
            red[i] = static_cast<BYTE>(color >> 16);
            green[i] = static_cast<BYTE>(color >> 8);
            blue[i] = static_cast<BYTE>(color);
            clear[i] = color >> 24 < 128;
        });
        int count = kClear;
        if (GifQuantizeBuffer(static_cast<unsigned>(width_),
                              static_cast<unsigned>(height_), &count, red.data(),
                              green.data(), blue.data(), indices.data(),
                              map_.Colors) != GIF_OK) {
            return false;
        }
        for (std::size_t i = 0; i < indices.size(); ++i) {
            indices[i] = clear[i] ? kClear : indices[i];
        }
        return true;
    }
};

}  // namespace

bool EncodeGif(const Source& source, std::vector<BYTE>& file) {
    constexpr INT longestSide = 65535;
    const Owned<ColorMapObject, GifFreeMapObject> map(GifMakeMapObject(256, nullptr));
    if (map == nullptr || source.Width() > longestSide || source.Height() > longestSide) {
        return false;
    }
    Reduced reduced(source, *map);
    if (!reduced.Find()) {
        return false;
    }
    const Owned<GifFileType, EndWriting> gif(EGifOpen(&file, WriteBytes, nullptr));
    if (gif == nullptr) {
        return false;
    }
    EGifSetGifVersion(gif.get(), true);
    GraphicsControlBlock control = {};
    control.TransparentColor = source.HasAlpha() ? kClear : NO_TRANSPARENT_COLOR;
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
        BYTE* const row = &reduced.indices[static_cast<std::size_t>(y) *
                                           static_cast<std::size_t>(source.Width())];
        if (EGifPutLine(gif.get(), row, source.Width()) != GIF_OK) {
            return false;
        }
    }
    return true;
}

}  // namespace engine
