#pragma once

#include <fontconfig/fontconfig.h>
#include <hb.h>

#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "cairo/flat_functions.h"
#include "cairo/owned.h"

namespace engine {

/// The file of a face in a family, and what it lacks of the style.
struct FaceFile {
    std::string path;
    int index = 0;
    bool embolden = false;
    bool slant = false;
    int hintStyle = FC_HINT_SLIGHT;  ///< one of Fontconfig's
};

/// The contents of a face's file; throws std::bad_alloc if it cannot be read now, though
/// Fontconfig listed it.
using FontBytes = Owned<hb_blob_t, hb_blob_destroy>;
FontBytes BytesOf(const FaceFile& file);

/// The metrics of a family, in its own units.
struct FamilyMetrics {
    UINT16 em = 0;
    UINT16 ascent = 0;
    UINT16 descent = 0;
    UINT16 spacing = 0;
};

/// A font family of the system. Fontconfig takes longer to find a face than a line takes
/// to draw: the faces of other styles are looked up when first needed, by whichever
/// thread.
class Family {
public:
    Family(std::u16string found, std::string asked,
           std::shared_ptr<const FaceFile> regular);

    /// For the style's bold and italic only; both throw std::bad_alloc if there is no
    /// such face now.
    const std::shared_ptr<const FaceFile>& FaceOf(INT style) const;
    const FamilyMetrics& MetricsOf(INT style) const;

    const std::u16string name;

private:
    struct Style {
        std::once_flag found;
        std::shared_ptr<const FaceFile> face;
        std::once_flag measured;
        FamilyMetrics metrics;
    };

    std::string asked_;
    mutable Style styles_[4];
};

/// The family with a name, or one with the same metrics that Fontconfig binds to it; null
/// if there is none.
std::shared_ptr<const Family> FindFamily(const FlatChar* name);

/// The faces that Fontconfig would use after a family's own, in order, whatever
/// characters they have; the first is the family's own.
struct Fallback {
    std::vector<std::shared_ptr<const FaceFile>> faces;
    std::vector<std::shared_ptr<FcCharSet>> characters;
};
Fallback FindFallback(const Family& family, INT style);

}  // namespace engine
