#include "page/language.h"

#include <algorithm>
#include <cstdlib>

namespace host {

// A language is one more row: its own name for itself, and the words of a page as its
// maps have them. Captions end with the space that follows them. Units are as short as is
// usual; no two units of a language may have the same name. What is read aloud stands in
// inner braces.
const std::vector<Language>& Languages() {
    static const std::vector<Language> languages = {
        // clang-format off
        {"en", "English",
         L"Legend", L"", L"Band ", L"High: ", L"Low: ",
         L"m", L"km", L"ft", L"US ft", L"yd", L"mi", L"nmi", L"°", L"map units",
         {L", ", L"Map", L"Picture", L"from {0} to {1}",
          L"{0}° N", L"{0}° S", L"{0}° E", L"{0}° W",
          L"Scale bar: {0} {1}", L"Scale bar: {0} {1} in {2} divisions",
          L"North arrow: north is up", L"North arrow: north is {0}° left of up", L"North arrow: north is {0}° right of up",
          L"dark {0}", L"light {0}", L"black", L"grey", L"white", L"red", L"orange",
          L"yellow", L"green", L"turquoise", L"blue", L"purple", L"pink", L"brown"}},
        {"ar", "العربية",
         L"مفتاح الخريطة", L"", L"النطاق ", L"\u202Bالأعلى: \u200E", L"\u202Bالأدنى: \u200E",
         L"م", L"كم", L"قدم", L"قدم أمريكية", L"ياردة", L"ميل", L"ميل بحري", L"°", L"وحدات الخريطة",
         {L"، ", L"خريطة", L"صورة", L"من {0} إلى {1}",
          L"{0}° شمالاً", L"{0}° جنوباً", L"{0}° شرقاً", L"{0}° غرباً",
          L"مقياس الرسم: {0} {1}", L"مقياس الرسم: {0} {1}، عدد الأقسام: {2}",
          L"سهم الشمال: الشمال إلى الأعلى", L"سهم الشمال: الشمال {0}° إلى يسار الأعلى", L"سهم الشمال: الشمال {0}° إلى يمين الأعلى",
          L"{0} داكن", L"{0} فاتح", L"أسود", L"رمادي", L"أبيض", L"أحمر", L"برتقالي",
          L"أصفر", L"أخضر", L"فيروزي", L"أزرق", L"بنفسجي", L"وردي", L"بني"}},
        {"de", "Deutsch",
         L"Legende", L"", L"Kanal ", L"Höchstwert: ", L"Tiefstwert: ",
         L"m", L"km", L"ft", L"US-ft", L"yd", L"mi", L"sm", L"°", L"Karteneinheiten",
         {L", ", L"Karte", L"Bild", L"von {0} bis {1}",
          L"{0}° N", L"{0}° S", L"{0}° O", L"{0}° W",
          L"Maßstabsleiste: {0} {1}", L"Maßstabsleiste: {0} {1} in {2} Teilen",
          L"Nordpfeil: Norden ist oben", L"Nordpfeil: Norden ist {0}° links von oben", L"Nordpfeil: Norden ist {0}° rechts von oben",
          L"dunkles {0}", L"helles {0}", L"Schwarz", L"Grau", L"Weiß", L"Rot", L"Orange",
          L"Gelb", L"Grün", L"Türkis", L"Blau", L"Violett", L"Rosa", L"Braun"}},
        {"es", "Español",
         L"Leyenda", L"", L"Banda ", L"Máximo: ", L"Mínimo: ",
         L"m", L"km", L"pies", L"pies EE. UU.", L"yd", L"mi", L"millas náuticas", L"°", L"unidades del mapa",
         {L", ", L"Mapa", L"Imagen", L"de {0} a {1}",
          L"{0}° N", L"{0}° S", L"{0}° E", L"{0}° O",
          L"Escala gráfica: {0} {1}", L"Escala gráfica: {0} {1} en {2} divisiones",
          L"Flecha de norte: el norte está arriba", L"Flecha de norte: el norte está {0}° a la izquierda de la vertical", L"Flecha de norte: el norte está {0}° a la derecha de la vertical",
          L"{0} oscuro", L"{0} claro", L"negro", L"gris", L"blanco", L"rojo", L"naranja",
          L"amarillo", L"verde", L"turquesa", L"azul", L"morado", L"rosa", L"marrón"}},
        {"fr", "Français",
         L"Légende", L"", L"Bande ", L"Maximum : ", L"Minimum : ",
         L"m", L"km", L"pi", L"pi US", L"vg", L"mi", L"milles marins", L"°", L"unités de la carte",
         {L", ", L"Carte", L"Image", L"de {0} à {1}",
          L"{0}° N", L"{0}° S", L"{0}° E", L"{0}° O",
          L"Échelle graphique : {0} {1}", L"Échelle graphique : {0} {1} en {2} divisions",
          L"Flèche du nord : le nord est en haut", L"Flèche du nord : le nord est à {0}° à gauche de la verticale", L"Flèche du nord : le nord est à {0}° à droite de la verticale",
          L"{0} foncé", L"{0} clair", L"noir", L"gris", L"blanc", L"rouge", L"orange",
          L"jaune", L"vert", L"turquoise", L"bleu", L"violet", L"rose", L"brun"}},
        {"ja", "日本語",
         L"凡例", L"", L"バンド ", L"高: ", L"低: ",
         L"m", L"km", L"フィート", L"米国測量フィート", L"ヤード", L"マイル", L"海里", L"°", L"地図単位",
         {L"、", L"地図", L"画像", L"{0}から{1}まで",
          L"北緯{0}度", L"南緯{0}度", L"東経{0}度", L"西経{0}度",
          L"スケールバー: {0} {1}", L"スケールバー: {0} {1}、{2}等分",
          L"方位記号: 北は上", L"方位記号: 北は上から左へ{0}度", L"方位記号: 北は上から右へ{0}度",
          L"濃い{0}", L"薄い{0}", L"黒", L"灰色", L"白", L"赤", L"オレンジ色",
          L"黄色", L"緑", L"青緑", L"青", L"紫", L"ピンク", L"茶色"}},
        {"pt", "Português",
         L"Legenda", L"", L"Banda ", L"Máximo: ", L"Mínimo: ",
         L"m", L"km", L"pés", L"pés EUA", L"jardas", L"mi", L"milhas náuticas", L"°", L"unidades do mapa",
         {L", ", L"Mapa", L"Imagem", L"de {0} a {1}",
          L"{0}° N", L"{0}° S", L"{0}° E", L"{0}° O",
          L"Escala gráfica: {0} {1}", L"Escala gráfica: {0} {1} em {2} divisões",
          L"Seta do norte: o norte está para cima", L"Seta do norte: o norte está {0}° à esquerda da vertical", L"Seta do norte: o norte está {0}° à direita da vertical",
          L"{0} escuro", L"{0} claro", L"preto", L"cinzento", L"branco", L"vermelho", L"laranja",
          L"amarelo", L"verde", L"turquesa", L"azul", L"roxo", L"rosa", L"castanho"}},
        {"ru", "Русский",
         L"Условные обозначения", L"", L"Канал ", L"Максимум: ", L"Минимум: ",
         L"м", L"км", L"футы", L"футы США", L"ярды", L"мили", L"мор. мили", L"°", L"ед. карты",
         {L", ", L"Карта", L"Изображение", L"от {0} до {1}",
          L"{0}° с. ш.", L"{0}° ю. ш.", L"{0}° в. д.", L"{0}° з. д.",
          L"Масштабная линейка: {0} {1}", L"Масштабная линейка: {0} {1}, делений: {2}",
          L"Стрелка севера: север вверху", L"Стрелка севера: север на {0}° левее верха", L"Стрелка севера: север на {0}° правее верха",
          L"тёмно-{0}", L"светло-{0}", L"чёрный", L"серый", L"белый", L"красный", L"оранжевый",
          L"жёлтый", L"зелёный", L"бирюзовый", L"синий", L"фиолетовый", L"розовый", L"коричневый"}},
        {"zh", "中文",
         L"图例", L"影像名：", L"波段_", L"高 : ", L"低 : ",
         L"米", L"公里", L"英尺", L"美国测量英尺", L"码", L"英里", L"海里", L"度", L"地图单位",
         {L"，", L"地图", L"图片", L"从{0}到{1}",
          L"北纬{0}度", L"南纬{0}度", L"东经{0}度", L"西经{0}度",
          L"比例尺：{0} {1}", L"比例尺：{0} {1}，共{2}段",
          L"指北针：北在上方", L"指北针：北在正上方偏左{0}度", L"指北针：北在正上方偏右{0}度",
          L"深{0}", L"浅{0}", L"黑色", L"灰色", L"白色", L"红色", L"橙色",
          L"黄色", L"绿色", L"青色", L"蓝色", L"紫色", L"粉色", L"棕色"}},
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
