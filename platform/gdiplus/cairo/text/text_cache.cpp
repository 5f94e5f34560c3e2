#include "cairo/text/text_cache.h"

#include <cstring>
#include <string_view>

namespace engine {
namespace {

// The limits of a thread's cache. A label of ten characters takes some 700 bytes, and
// with its outline 5,000.
constexpr std::size_t kMostBytes = 4 << 20;
constexpr std::size_t kMostFamilies = 256;
constexpr std::size_t kMostFaces = 64;
constexpr std::size_t kMostSizes = 128;

struct Held {
    std::unique_ptr<ThreadTexts> texts;
    unsigned generation = 0;
};

Held& Mine() {
    thread_local Held held;
    return held;
}

std::uint64_t Mixed(std::uint64_t hash, std::uint64_t value) {
    hash = (hash ^ value) * 0x9E3779B97F4A7C15;
    return hash ^ hash >> 29;
}

std::uint64_t Bits(double value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

std::uint64_t HashOf(const TextStyle& style, std::u16string_view text) {
    auto hash =
        static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(style.family));
    hash = Mixed(hash, Bits(style.size));
    hash = Mixed(hash, Bits(style.width));
    hash = Mixed(hash, Bits(style.height));
    hash = Mixed(hash, static_cast<std::uint32_t>(style.flags));
    hash = Mixed(hash, static_cast<std::uint64_t>(
                           style.style | style.alignment << 8 |
                           style.lineAlignment << 12 | style.trimming << 16 |
                           (style.fit ? 1 << 20 : 0) | (style.smooth ? 1 << 21 : 0)));
    while (text.size() >= 4) {
        std::uint64_t four = 0;
        std::memcpy(&four, text.data(), sizeof four);
        hash = Mixed(hash, four);
        text.remove_prefix(4);
    }
    for (const char16_t unit : text) {
        hash = Mixed(hash, unit + 0x10000U);
    }
    return hash;
}

}  // namespace

bool ThreadTexts::SizedKey::operator<(const SizedKey& other) const {
    return std::tie(file, size, fit, smooth) <
           std::tie(other.file, other.size, other.fit, other.smooth);
}

std::shared_ptr<const Family> ThreadTexts::FamilyOf(const FlatChar* name) {
    const auto found = families_.find(std::u16string_view(name));
    if (found != families_.end()) {
        return found->second;
    }
    if (families_.size() >= kMostFamilies) {
        families_.clear();
    }
    return families_.emplace(name, FindFamily(name)).first->second;
}

std::shared_ptr<Face> ThreadTexts::FaceOf(const std::shared_ptr<const FaceFile>& file) {
    const FaceName name = {file->path, file->index, file->embolden, file->slant};
    const auto found = faces_.find(name);
    if (found != faces_.end()) {
        return found->second;
    }
    if (faces_.size() >= kMostFaces) {
        faces_.clear();
    }
    return faces_.emplace(name, std::make_shared<Face>(file)).first->second;
}

std::shared_ptr<SizedFace> ThreadTexts::Sized(const std::shared_ptr<const FaceFile>& file,
                                              const TextStyle& style) {
    const SizedKey key = {file, style.size, style.fit, style.smooth};
    const auto found = sized_.find(key);
    if (found != sized_.end()) {
        return found->second;
    }
    // Cached texts hold references to their own sizes.
    if (sized_.size() >= kMostSizes) {
        sized_.clear();
    }
    auto sized =
        std::make_shared<SizedFace>(FaceOf(file), style.size, style.fit, style.smooth);
    sized_.emplace(key, sized);
    return sized;
}

std::shared_ptr<const FaceFile> ThreadTexts::FallbackFor(const TextStyle& style,
                                                         char32_t character) {
    const INT bits = style.style & FontStyleBoldItalic;
    const auto key = std::make_pair(style.family->name, bits);
    auto found = fallbacks_.find(key);
    if (found == fallbacks_.end()) {
        if (fallbacks_.size() >= 16) {
            fallbacks_.clear();
        }
        found = fallbacks_.emplace(key, FindFallback(*style.family, bits)).first;
    }
    const Fallback& fallback = found->second;
    for (std::size_t i = 0; i < fallback.faces.size(); ++i) {
        if (FcCharSetHasChar(fallback.characters[i].get(), character) != FcFalse) {
            return fallback.faces[i];
        }
    }
    return nullptr;
}

void ThreadTexts::DropOldest() {
    bytes_ -= kept_.back().bytes;
    places_.erase(kept_.back().hash);
    kept_.pop_back();
}

TextLayout& ThreadTexts::LayoutOf(const std::shared_ptr<const Family>& family,
                                  const TextStyle& style, const FlatChar* text,
                                  std::size_t length) {
    const std::u16string_view view(text, length);
    const std::uint64_t hash = HashOf(style, view);
    const auto place = places_.find(hash);
    if (place != places_.end()) {
        const auto kept = place->second;
        if (kept->style == style && kept->text == view) {
            kept_.splice(kept_.begin(), kept_, kept);
            return *kept->layout;
        }
        bytes_ -= kept->bytes;
        kept_.erase(kept);
        places_.erase(place);
    }
    std::unique_ptr<TextLayout> layout = LayOut(*this, style, text, length);
    const std::size_t bytes = layout->Bytes() + sizeof(Kept) + 2 * length;
    kept_.push_front(
        {hash, style, family, std::u16string(view), std::move(layout), bytes});
    bytes_ += bytes;
    places_[hash] = kept_.begin();
    Charge(0);
    return *kept_.front().layout;
}

void ThreadTexts::Charge(std::size_t bytes) {
    kept_.front().bytes += bytes;
    bytes_ += bytes;
    while (bytes_ > kMostBytes && kept_.size() > 1) {
        DropOldest();
    }
}

ThreadTexts& Texts() {
    Held& held = Mine();
    if (held.texts == nullptr || held.generation != Generation()) {
        held.texts = std::make_unique<ThreadTexts>();
        held.generation = Generation();
    }
    return *held.texts;
}

std::shared_ptr<const Family> FamilyOf(const FlatChar* name) {
    return Texts().FamilyOf(name);
}

void ForgetTexts() {
    Mine().texts.reset();
    ReleaseFreeType();
}

}  // namespace engine
