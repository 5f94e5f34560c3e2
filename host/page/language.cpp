#include "page/language.h"

#include <algorithm>
#include <cstdlib>

namespace host {

// A language is one more row: what it is called in itself, and the words of a page as its
// maps have them. Captions are written with the space that follows them. Units are as
// short as they are usual; no two of one language may be called alike.
const std::vector<Language>& Languages() {
    static const std::vector<Language> languages = {
        // clang-format off
        {"en", "English",
         L"Legend", L"", L"Band ", L"High: ", L"Low: ",
         L"m", L"km", L"ft", L"US ft", L"yd", L"mi", L"nmi", L"°", L"map units"},
        {"ar", "العربية",
         L"مفتاح الخريطة", L"", L"النطاق ", L"\u202Bالأعلى: \u200E", L"\u202Bالأدنى: \u200E",
         L"م", L"كم", L"قدم", L"قدم أمريكية", L"ياردة", L"ميل", L"ميل بحري", L"°", L"وحدات الخريطة"},
        {"de", "Deutsch",
         L"Legende", L"", L"Kanal ", L"Höchstwert: ", L"Tiefstwert: ",
         L"m", L"km", L"ft", L"US-ft", L"yd", L"mi", L"sm", L"°", L"Karteneinheiten"},
        {"es", "Español",
         L"Leyenda", L"", L"Banda ", L"Máximo: ", L"Mínimo: ",
         L"m", L"km", L"pies", L"pies EE. UU.", L"yd", L"mi", L"millas náuticas", L"°", L"unidades del mapa"},
        {"fr", "Français",
         L"Légende", L"", L"Bande ", L"Maximum : ", L"Minimum : ",
         L"m", L"km", L"pi", L"pi US", L"vg", L"mi", L"milles marins", L"°", L"unités de la carte"},
        {"ja", "日本語",
         L"凡例", L"", L"バンド ", L"高: ", L"低: ",
         L"m", L"km", L"フィート", L"米国測量フィート", L"ヤード", L"マイル", L"海里", L"°", L"地図単位"},
        {"pt", "Português",
         L"Legenda", L"", L"Banda ", L"Máximo: ", L"Mínimo: ",
         L"m", L"km", L"pés", L"pés EUA", L"jardas", L"mi", L"milhas náuticas", L"°", L"unidades do mapa"},
        {"ru", "Русский",
         L"Условные обозначения", L"", L"Канал ", L"Максимум: ", L"Минимум: ",
         L"м", L"км", L"футы", L"футы США", L"ярды", L"мили", L"мор. мили", L"°", L"ед. карты"},
        {"zh", "中文",
         L"图例", L"影像名：", L"波段_", L"高 : ", L"低 : ",
         L"米", L"公里", L"英尺", L"美国测量英尺", L"码", L"英里", L"海里", L"度", L"地图单位"},
        // clang-format on
    };
    return languages;
}

const wchar_t* Language::Unit(DistanceUnit unit) const {
    switch (unit) {
        case DistanceUnit::Metric:
        case DistanceUnit::Metre:
            return metre;
        case DistanceUnit::Kilometre:
            return kilometre;
        case DistanceUnit::Imperial:
        case DistanceUnit::Foot:
            return foot;
        case DistanceUnit::UsSurveyFoot:
            return usSurveyFoot;
        case DistanceUnit::Yard:
            return yard;
        case DistanceUnit::Mile:
            return mile;
        case DistanceUnit::NauticalMile:
            return nauticalMile;
        case DistanceUnit::Degree:
            return degree;
        case DistanceUnit::Coordinate:
            break;
    }
    return mapUnit;
}

std::optional<DistanceUnit> Language::UnitCalled(std::wstring_view word) const {
    for (const DistanceUnitFacts& facts : DistanceUnits()) {
        if (!IsByLength(facts.unit) && word == Unit(facts.unit)) {
            return facts.unit;
        }
    }
    return std::nullopt;
}

const Language& LanguageAt(std::int32_t place) {
    const auto index = static_cast<std::size_t>(place);
    return index < Languages().size() ? Languages()[index] : English();
}

std::int32_t PlaceOf(const Language& language) {
    return static_cast<std::int32_t>(&language - Languages().data());
}

const Language& English() { return Languages().front(); }

const Language* FindLanguage(std::string_view code) {
    const auto found =
        std::find_if(Languages().begin(), Languages().end(),
                     [code](const Language& known) { return known.code == code; });
    return found == Languages().end() ? nullptr : &*found;
}

const Language& LanguageOfLocale() {
    for (const char* const name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* const set = std::getenv(name);
        const std::string_view locale = set == nullptr ? "" : set;  // "de_AT.UTF-8"
        if (!locale.empty()) {
            const Language* const known =
                FindLanguage(locale.substr(0, locale.find_first_of("_.@-")));
            return known == nullptr ? English() : *known;
        }
    }
    return English();
}

void SetCaptions(CMapLegend& legend, const Language& language) {
    legend.SetSourceCaption(language.source);
    legend.SetBandCaption(language.band);
    legend.SetHighCaption(language.high);
    legend.SetLowCaption(language.low);
}

}  // namespace host
