#include "raster_data/classification_table.h"

#include <utility>

namespace host {

ClassificationItem::ClassificationItem(std::wstring label, ClassColour colour)
    : m_label(std::move(label)), m_colour(colour) {}

std::wstring ClassificationItem::GetLable() { return m_label; }

void ClassificationItem::GetColor(unsigned char& red, unsigned char& green,
                                  unsigned char& blue, unsigned char& fourth) {
    red = m_colour.red;
    green = m_colour.green;
    blue = m_colour.blue;
    fourth = m_colour.alpha;
}

void ClassificationTable::Add(std::wstring label, ClassColour colour) {
    m_items.push_back(std::make_unique<ClassificationItem>(std::move(label), colour));
}

int ClassificationTable::GetClassesCount() { return static_cast<int>(m_items.size()); }

CClassifyDisplayItem* ClassificationTable::GetClassifyItem(int index) {
    if (index < 0 || index >= GetClassesCount()) {
        return nullptr;
    }
    return m_items[static_cast<std::size_t>(index)].get();
}

}  // namespace host
