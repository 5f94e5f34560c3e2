#include <string_view>
#include <utility>

#include "map_surround/scale_bar.h"

namespace {

struct UnitWord {
    std::wstring_view given;
    std::wstring_view written;
};

constexpr std::wstring_view kDegree = L"\u5EA6";           // 度
constexpr std::wstring_view kUnknown = L"\u672A\u77E5";    // 未知
constexpr std::wstring_view kMetre = L"\u7C73";            // 米
constexpr std::wstring_view kKilometre = L"\u516C\u91CC";  // 公里

// Exactly these spellings; no other word is translated.
constexpr UnitWord kUnitWords[] = {
    {L"degree", kDegree}, {L"unknown", kUnknown},     {L"Unknown", kUnknown},
    {L"meter", kMetre},   {L"Meter", kMetre},         {L"metre", kMetre},
    {L"Metre", kMetre},   {L"Kilometer", kKilometre}, {L"Kilometre", kKilometre},
    {L"Degree", kDegree},
};

}  // namespace

void CScaleBarBase::SetUnitsName(std::wstring name) {
    for (const UnitWord& word : kUnitWords) {
        if (name == word.given) {
            m_unitsName = word.written;
            return;
        }
    }
    m_unitsName = std::move(name);
}
