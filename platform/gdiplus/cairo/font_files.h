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

/// Where a face of a family is, and what it lacks of its style.
struct FaceFile {
    std::string path;
    int index = 0;
    bool embolden = false;
    bool slant = false;
    int hintStyle = FC_HINT_SLIGHT;  ///< of Fontconfig's
};

/// What is in the file of a face; throws std::bad_alloc where it cannot be read now,
/// though Fontconfig told of it.
using FontBytes = Owned<hb_blob_t, hb_blob_destroy>;
FontBytes BytesOf(const FaceFile& file);

/// The measures of a family, in its own units.
struct FamilyMetrics {
    UINT16 em = 0;
    UINT16 ascent = 0;
    UINT16 descent = 0;
    UINT16 spacing = 0;
};

/// A family of the system. Fontconfig takes longer to find a face than a line takes to
/// write: those of the other styles are looked for when they are first needed, by
/// whatever thread.
class Family {
public:
    Family(std::u16string found, std::string asked,
           std::shared_ptr<const FaceFile> regular);

    /// Of the style's bold and italic alone; throw std::bad_alloc where there is none
    /// now.
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

/// The family of a name, or one of the same measures that Fontconfig binds to it; null
/// where there is none.
std::shared_ptr<const Family> FindFamily(const FlatChar* name);

/// The faces that Fontconfig would have after that of a family, in order, whatever
/// characters they have; the first is the family's own.
struct Fallback {
    std::vector<std::shared_ptr<const FaceFile>> faces;
    std::vector<std::shared_ptr<FcCharSet>> characters;
};
Fallback FindFallback(const Family& family, INT style);

}  // namespace engine
