#pragma once

/// @file
/// The classes of a raster, for a legend.

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/common_functions.h"

namespace map_surround::kit {

/// A colour of a class.
struct ClassColour {
    unsigned char red = 0;      ///< 0 to 255, as the others.
    unsigned char green = 0;    ///< Likewise.
    unsigned char blue = 0;     ///< Likewise.
    unsigned char alpha = 255;  ///< Likewise, on the host's map; swatches are opaque.
};

/// One class: its label and its colour. The fourth component that it reports is the
/// colour's alpha.
class ClassificationItem : public CClassifyDisplayItem {
public:
    /// From a label and a colour.
    ClassificationItem(std::wstring label, ClassColour colour)
        : m_label(std::move(label)), m_colour(colour) {}

    std::wstring GetLable() override { return m_label; }
    void GetColor(unsigned char& red, unsigned char& green, unsigned char& blue,
                  unsigned char& fourth) override {
        red = m_colour.red;
        green = m_colour.green;
        blue = m_colour.blue;
        fourth = m_colour.alpha;
    }

private:
    std::wstring m_label;
    ClassColour m_colour;
};

/// The classes of a classified display, in the order in which they were added. The table
/// owns them; pointers to them stay valid when more are added.
class ClassificationTable : public CClassifyDisplayTable {
public:
    /// Adds a class after the others.
    void Add(std::wstring label, ClassColour colour) {
        m_items.push_back(std::make_unique<ClassificationItem>(std::move(label), colour));
    }

    int GetClassesCount() override { return static_cast<int>(m_items.size()); }

    /// Null for an index that is negative or not below the count.
    CClassifyDisplayItem* GetClassifyItem(int index) override {
        return index < 0 || index >= GetClassesCount()
                   ? nullptr
                   : m_items[static_cast<std::size_t>(index)].get();
    }

private:
    std::vector<std::unique_ptr<ClassificationItem>> m_items;
};

}  // namespace map_surround::kit
