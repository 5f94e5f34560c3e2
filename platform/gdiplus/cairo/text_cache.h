#pragma once

#include <list>
#include <map>
#include <tuple>
#include <unordered_map>

#include "cairo/text_layout.h"

namespace engine {

/// What a thread keeps of fonts and texts: found once, and the texts last written as laid
/// out. Other threads have their own.
struct ThreadTexts {
    /// A family by its name; null where there is none.
    std::shared_ptr<const Family> FamilyOf(const FlatChar* name);

    /// A face in the size and manner of a style.
    std::shared_ptr<SizedFace> Sized(const std::shared_ptr<const FaceFile>& file,
                                     const TextStyle& style);

    /// The first face that has a character, of those that stand in for a family's; null
    /// where none has.
    std::shared_ptr<const FaceFile> FallbackFor(const TextStyle& style,
                                                char32_t character);

    /// A text laid out, kept from the last time where it still is. Good until the next.
    TextLayout& LayoutOf(const std::shared_ptr<const Family>& family,
                         const TextStyle& style, const FlatChar* text,
                         std::size_t length);

    /// Counts what the text last laid out has come to hold.
    void Charge(std::size_t bytes);

private:
    struct Kept {
        std::uint64_t hash;
        TextStyle style;
        std::shared_ptr<const Family> family;  ///< so that its address stays its own
        std::u16string text;
        std::unique_ptr<TextLayout> layout;
        std::size_t bytes;
    };
    using FaceName = std::tuple<std::string, int, bool, bool>;
    struct SizedKey {
        std::shared_ptr<const FaceFile> file;  ///< so that its address stays its own
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
    std::list<Kept> kept_;  ///< the last written first
    std::unordered_map<std::uint64_t, std::list<Kept>::iterator> places_;
    std::size_t bytes_ = 0;
};

/// The calling thread's.
ThreadTexts& Texts();

std::shared_ptr<const Family> FamilyOf(const FlatChar* name);

/// Lets go of what the calling thread keeps, and of FreeType with the last.
void ForgetTexts();

}  // namespace engine
