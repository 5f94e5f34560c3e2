#include "page/document/unused_changes.h"

#include <algorithm>

#include "page/document/item_type.h"

namespace host {
namespace {

bool HasAny(const Page& page, const char* property) {
    return std::any_of(
        page.Items().begin(), page.Items().end(), [property](const PageItem& item) {
            const ItemType* const type = TypeOf(item);
            return type != nullptr && FindProperty(type->properties, property) != nullptr;
        });
}

}  // namespace

std::vector<std::string> RemarksOfUnused(const PageChanges& changes, const Page& page) {
    std::vector<std::string> remarks;
    if (!changes.rasters.empty() && !HasAny(page, "rasters")) {
        remarks.emplace_back("the page has no map or legend that shows the rasters");
    }
    if ((changes.extent || changes.scale || !changes.mapTexts.empty()) &&
        !HasAny(page, "extent")) {
        remarks.emplace_back("the page has no map whose extent, scale or colours change");
    }
    if (changes.language != nullptr && !HasAny(page, "language") &&
        !HasAny(page, "bandCaption")) {
        remarks.emplace_back("the page has no legend or scale bar to be in a language");
    }
    return remarks;
}

}  // namespace host
