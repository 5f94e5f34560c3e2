#pragma once

#include <list>
#include <map>
#include <tuple>
#include <unordered_map>

#include "cairo/text/text_layout.h"

namespace engine {

/// A thread's cache of fonts and of the most recent texts as laid out. Other threads have
/// their own.
struct ThreadTexts {
    /// A family by its name; null for none.
    std::shared_ptr<const Family> FamilyOf(const FlatChar* name);

    /// A face in the size and rendering of a style.
    std::shared_ptr<SizedFace> Sized(const std::shared_ptr<const FaceFile>& file,
                                     const TextStyle& style);

    /// The first fallback face for a family that has a character; null for none.
    std::shared_ptr<const FaceFile> FallbackFor(const TextStyle& style,
                                                char32_t character);

    /// A text laid out, from the cache if possible. Valid until the next call.
    TextLayout& LayoutOf(const std::shared_ptr<const Family>& family,
                         const TextStyle& style, const FlatChar* text,
                         std::size_t length);

    /// Accounts for the memory of the text last laid out.
    void Charge(std::size_t bytes);

private:
    struct Kept {
        std::uint64_t hash;
        TextStyle style;
        std::shared_ptr<const Family> family;  ///< so that its address is not reused
        std::u16string text;
        std::unique_ptr<TextLayout> layout;
        std::size_t bytes;
    };
    using FaceName = std::tuple<std::string, int, bool, bool>;
    struct SizedKey {
        std::shared_ptr<const FaceFile> file;  ///< so that its address is not reused
        double size;
        bool fit;
        bool smooth;
        bool operator<(const SizedKey& other) const;
    };

    std::shared_ptr<Face> FaceOf(const std::shared_ptr<const FaceFile>& file);
    void DropOldest();

    std::map<std::u16string, std::shared_ptr<const Family>, std::less<>> families_;
    std::map<FaceName, std::shared_ptr<Face>> faces_;
    std::map<SizedKey, std::shared_ptr<SizedFace>> sized_;
    std::map<std::pair<std::u16string, INT>, Fallback> fallbacks_;
    std::list<Kept> kept_;  ///< most recent first
    std::unordered_map<std::uint64_t, std::list<Kept>::iterator> places_;
    std::size_t bytes_ = 0;
};

/// The calling thread's cache.
ThreadTexts& Texts();

std::shared_ptr<const Family> FamilyOf(const FlatChar* name);

/// Releases the calling thread's cache, and FreeType with the last one.
void ForgetTexts();

}  // namespace engine
