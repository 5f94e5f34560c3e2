#pragma once

#include <fontconfig/fontconfig.h>
#include <hb.h>

#include <memory>
#include <string>
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

/// A family of the system: its name, and the face for each of the four styles.
struct Family {
    std::u16string name;
    std::shared_ptr<const FaceFile> faces[4];
    FamilyMetrics metrics[4];
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
