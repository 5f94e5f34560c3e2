#include "true_pages/page_reading.h"

#include <gdiplus.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>

#include "page/document/opened_page.h"
#include "recording/lines.h"
#include "recording/recording.h"

namespace true_pages {

WrittenPage::WrittenPage(const std::string& path, double dpi) : m_path(path), m_dpi(dpi) {
    std::ifstream file(path);
    m_page = nlohmann::json::parse(file, nullptr, false);
    EXPECT_TRUE(m_page.is_object()) << path;
}

const nlohmann::json* WrittenPage::Find(const std::string& type) const {
    for (const nlohmann::json& item : m_page["elements"]) {
        if (item["type"].get<std::string>().compare(0, type.size(), type) == 0) {
            return &item;
        }
    }
    return nullptr;
}

Area WrittenPage::FrameOf(const nlohmann::json& item) const {
    const nlohmann::json& frame = item["frame"];
    const double left = frame["left"];
    const double top = m_page["height"].get<double>() - frame["top"].get<double>();
    const auto edge = [&](double at) {
        return static_cast<int>(std::floor(ToDevice(at) + 0.5));
    };
    return {edge(left), edge(top), edge(left + frame["width"].get<double>()),
            edge(top + frame["height"].get<double>())};
}

double WrittenPage::WidthOf(const nlohmann::json& item) const {
    return ToDevice(item["frame"]["width"]);
}

std::pair<double, double> WrittenPage::CentreOf(const nlohmann::json& item) const {
    const Area frame = FrameOf(item);
    return {frame.left + (frame.right - frame.left) / 2 +
                std::round(ToDevice(item["offsetX"])),
            frame.top + (frame.bottom - frame.top) / 2 -
                std::round(ToDevice(item["offsetY"]))};
}

void WrittenPage::WriteArrows(const nlohmann::json& arrow,
                              const std::string& path) const {
    constexpr double kMargin = 10.0;
    constexpr double kLeastSide = 76.0;  // a little over the 20 mm that a sheet has
    const double width = arrow["frame"]["width"];
    const double height = arrow["frame"]["height"];
    nlohmann::json page = m_page;
    page["width"] = std::max(kLeastSide, 2.0 * width + 3.0 * kMargin);
    page["height"] = std::max(kLeastSide, height + 2.0 * kMargin);
    nlohmann::json turned = arrow;
    turned["frame"]["left"] = kMargin;
    turned["frame"]["top"] = height + kMargin;
    nlohmann::json upright = turned;
    upright["frame"]["left"] = width + 2.0 * kMargin;
    upright["name"] = "upright";
    upright["trueNorth"] = false;
    upright["angle"] = 0.0;
    page["elements"] = {*Find("map"), turned, upright};
    std::ofstream(path) << page;
}

std::vector<std::string> WrittenPage::TextsOf(const nlohmann::json& item) const {
    const host::OpenedPage opened = host::OpenPageFile(m_path, nullptr);
    const auto& elements = m_page["elements"];
    const auto index = static_cast<std::size_t>(&item - &elements[0]);
    Gdiplus::Bitmap surface(1, 1, PixelFormat32bppRGB);
    Gdiplus::Graphics graphics(&surface);
    host::RenderedMaps maps;
    const recording::Recording recording;
    opened.page.DrawItems(graphics, m_dpi, {index}, maps);
    std::vector<std::string> texts;
    for (const recording::Written& written : recording::WrittenIn(recording.Drawing())) {
        texts.push_back(written.text);
    }
    return texts;
}

}  // namespace true_pages
