#include "page/texts.h"

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>
#include <tuple>

#include "map_surround/title.h"
#include "page/document/page_error.h"
#include "page/element_of.h"
#include "page/placed_frame.h"
#include "page/words/legend_words.h"
#include "system/errors.h"
#include "system/fonts.h"
#include "system/utf8.h"

namespace host {
namespace {

// The texts that elements write by themselves, and their fonts.
constexpr const char* kArrowAndEntryFamily = "Arial";
constexpr const char* kBarFamily = "Times New Roman";
constexpr const wchar_t* kLetters = L"NESW";
constexpr const wchar_t* kNumbers = L"0123456789.-";

constexpr const wchar_t* kEllipsis = L"\u2026";  // of texts that are cut

constexpr std::size_t kMostShown = 8;

std::wstring EntriesOf(const CMapLegend& legend, CRasterSource& source, bool isRamp) {
    switch (isRamp ? DisplayGray : source.GetDisplayType()) {
        case DisplayRGB:
            return legend.GetBandCaption() + kNumbers;
        case DisplayGray:
            return legend.GetHighCaption() + legend.GetLowCaption() + kNumbers;
        case DisplayClassified:
            break;
    }
    std::wstring labels;
    CClassifyDisplayTable* const table = source.GetClassifyDisplayTable();
    const int count = table == nullptr ? 0 : table->GetClassesCount();
    for (int i = 0; i < count; ++i) {
        CClassifyDisplayItem* const item = table->GetClassifyItem(i);
        labels += item == nullptr ? L"" : item->GetLable();
    }
    return labels;
}

std::vector<WrittenText> TextsOfLegend(const CMapLegend& legend,
                                       const std::vector<CGISDataSource*>& sources) {
    std::wstring names;
    std::wstring entries;
    if (legend.GetMostWidth() > 0.0f) {
        names = entries = kEllipsis;
    }
    for (const ExplainedRaster& explained : ExplainedBy(legend, sources)) {
        names += legend.GetSourceCaption() + explained.name;
        entries += EntriesOf(legend, *explained.raster, !explained.ramp.empty());
    }
    return {{Narrow(legend.GetTitle()), legend.GetTitleStyle(), legend.GetTitleValue()},
            {Narrow(legend.GetFileName()), legend.GetFileNameStyle(), names},
            {kArrowAndEntryFamily, legend.GetFileNameStyle(), entries}};
}

/// Whether names or labels of a legend are cut at present.
bool CutsTexts(const CMapLegend& legend) {
    CMapLegend measured(legend);
    measured.SetSizeAspect(1.0f);
    measured.ResetAspectRatio();
    return measured.HasCutTexts();
}

/// Fontconfig sorts all fonts for each chain, so the items of a page share them.
class Chains {
public:
    const FontChain& Of(const WrittenText& text) {
        const bool bold = (text.style & Gdiplus::FontStyleBold) != 0;
        const bool italic = (text.style & Gdiplus::FontStyleItalic) != 0;
        return m_chains
            .try_emplace({text.family, bold, italic}, text.family, bold, italic)
            .first->second;
    }

private:
    std::map<std::tuple<std::string, bool, bool>, FontChain> m_chains;
};

std::string CodeOf(char32_t character) {
    char code[16];
    std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(character));
    return code;
}

std::string InWords(const std::u32string& missing) {
    std::wstring shown;
    std::string codes;
    for (std::size_t i = 0; i < std::min(missing.size(), kMostShown); ++i) {
        shown += static_cast<wchar_t>(missing[i]);
        codes += (i == 0 ? "" : " ") + CodeOf(missing[i]);
    }
    if (missing.size() > kMostShown) {
        codes += " and " + std::to_string(missing.size() - kMostShown) + " more";
    }
    return "no font has \"" + Narrow(shown) + "\" (" + codes +
           "): " + (missing.size() == 1 ? "a box is drawn" : "boxes are drawn");
}

void AddMissing(const PageItem& item, Chains& chains, std::vector<std::string>& remarks) {
    std::u32string missing;
    for (const WrittenText& text : TextsOf(item)) {
        missing += chains.Of(text).Missing(text.characters);
    }
    if (!missing.empty()) {
        remarks.push_back(NameOf(item) + ": " + InWords(missing));
    }
}

}  // namespace

std::vector<WrittenText> TextsOf(const PageItem& item) {
    if (const auto* const title = ElementOf<CMapTitle>(item)) {
        return {{Narrow(title->GetFontStyle()), title->GetFontProcess(),
                 title->GetFontValue()}};
    }
    if (const auto* const bar = ElementOf<CScaleBarBase>(item)) {
        return {{kBarFamily, Gdiplus::FontStyleRegular, kNumbers + bar->GetUnitsName()}};
    }
    if (ElementOf<CNorthArrowBase>(item) != nullptr) {
        return {{kArrowAndEntryFamily, Gdiplus::FontStyleRegular, kLetters}};
    }
    const auto* const frame = FrameAs<LegendFrame>(item);
    const auto* const legend = ElementOf<CMapLegend>(item);
    return frame == nullptr || legend == nullptr
               ? std::vector<WrittenText>()
               : TextsOfLegend(*legend, frame->Sources());
}

void CheckFontsOf(const Page& page) {
    std::set<std::string> known;
    for (const PageItem& item : page.Items()) {
        for (const WrittenText& text : TextsOf(item)) {
            if (known.insert(text.family).second && !IsFontFamilyKnown(text.family)) {
                throw PageError(NameOf(item),
                                "no font family \"" + text.family + "\" is installed");
            }
        }
    }
}

std::vector<std::string> RemarksOfTexts(const Page& page) {
    std::vector<std::string> remarks;
    Chains chains;
    for (const PageItem& item : page.Items()) {
        AddMissing(item, chains, remarks);
        const auto* const legend = ElementOf<CMapLegend>(item);
        if (legend != nullptr && CutsTexts(*legend)) {
            remarks.push_back(NameOf(item) +
                              ": names or labels are too wide for it, and end in \u2026");
        }
    }
    return remarks;
}

std::vector<std::string> RemarksOfMissing(const Page& page) {
    std::vector<std::string> remarks;
    Chains chains;
    for (const PageItem& item : page.Items()) {
        AddMissing(item, chains, remarks);
    }
    return remarks;
}

void CheckWritten(const Page& page) {
    Chains chains;
    for (const PageItem& item : page.Items()) {
        for (const WrittenText& text : TextsOf(item)) {
            const std::string why = chains.Of(text).WhyUnusable(text.characters);
            if (!why.empty()) {
                throw NamedError(NameOf(item), "cannot be written: " + why);
            }
        }
    }
}

}  // namespace host
