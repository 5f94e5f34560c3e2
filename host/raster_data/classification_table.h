#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/common_functions.h"

namespace host {

/// A colour of a class, 0 to 255 each; an alpha of 0 is transparent on the map.
struct ClassColour {
    unsigned char red = 0;
    unsigned char green = 0;
    unsigned char blue = 0;
    unsigned char alpha = 255;
};

/// One class: its label and its colour. The fourth component that it answers is the
/// colour's alpha.
class ClassificationItem : public CClassifyDisplayItem {
public:
    ClassificationItem(std::wstring label, ClassColour colour);

    std::wstring GetLable() override;
    void GetColor(unsigned char& red, unsigned char& green, unsigned char& blue,
                  unsigned char& fourth) override;

private:
    std::wstring m_label;
    ClassColour m_colour;
};

/// The classes of a classified display, in the order in which they were added. The table
/// owns them; an item stays where it is while more are added.
class ClassificationTable : public CClassifyDisplayTable {
public:
    void Add(std::wstring label, ClassColour colour);

    int GetClassesCount() override;

    /// Null for an index that is negative or not below the count.
    CClassifyDisplayItem* GetClassifyItem(int index) override;

private:
    std::vector<std::unique_ptr<ClassificationItem>> m_items;
};

}  // namespace host
