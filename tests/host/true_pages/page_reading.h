#pragma once

#include <string>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "page/box.h"
#include "true_pages/picture.h"

namespace true_pages {

/// A page file as it was written, and where its items stand on a picture of the page.
class WrittenPage {
public:
    /// Fails the test when the file cannot be read.
    WrittenPage(const std::string& path, double dpi);

    /// The first item whose type begins so, "scale-bar-", "map"; null where there is
    /// none.
    const nlohmann::json* Find(const std::string& type) const;
    const nlohmann::json* Last() const { return &m_page["elements"].back(); }

    /// The device pixels of an item's frame.
    Area FrameOf(const nlohmann::json& item) const;

    /// The width of an item's frame on paper, in pixels and parts of them.
    double WidthOf(const nlohmann::json& item) const;

    /// The device point of an element's centre: x and y.
    std::pair<double, double> CentreOf(const nlohmann::json& item) const;

    /// Writes a page file of nothing but the arrow, the map that it follows, and the same
    /// arrow pointing up beside it, called "upright".
    void WriteArrows(const nlohmann::json& arrow, const std::string& path) const;

    /// The texts that the item writes, in their order.
    std::vector<std::string> TextsOf(const nlohmann::json& item) const;

private:
    double ToDevice(double length) const { return length * m_dpi / 96.0; }

    std::string m_path;
    double m_dpi;
    nlohmann::json m_page;
};

}  // namespace true_pages
