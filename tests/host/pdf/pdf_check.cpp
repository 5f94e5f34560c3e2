#include "pdf/pdf_check.h"

#include <functional>
#include <map>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFOutlineDocumentHelper.hh>
#include <set>

namespace host_tests {
namespace {

using Handle = QPDFObjectHandle;
using Lines = std::vector<std::string>;

bool IsPainting(const std::string& name) {
    static const std::set<std::string> painting = {"f",  "F", "f*", "B",  "B*", "b",
                                                   "b*", "S", "s",  "Do", "sh", "Tj",
                                                   "TJ", "'", "\"", "EI", "BI"};
    return painting.count(name) > 0;
}

std::string ContentsOf(Handle stream) {
    const auto buffer = stream.getStreamData(qpdf_dl_all);
    return {reinterpret_cast<const char*>(buffer->getBuffer()), buffer->getSize()};
}

/// Walks through a page's content and collects its tags.
class Tags : public Handle::ParserCallbacks {
public:
    Tags(std::string place, Lines& wrong) : m_place(std::move(place)), m_wrong(wrong) {}

    void handleObject(Handle object) override {
        if (!object.isOperator()) {
            m_operands.push_back(object);
            return;
        }
        const std::string name = object.getOperatorValue();
        if (name == "BT" || name == "ET") {
            m_textDepth = m_depth;
            m_inText = name == "BT";
        } else if (name == "BDC" && m_operands.back().isDictionary() &&
                   m_operands.back().hasKey("/ActualText")) {
            Check(m_depth == 1, "a span outside of tags");
            ++m_spans;
        } else if (name == "EMC" && m_spans > 0) {
            --m_spans;
        } else if (name == "BDC" || name == "BMC") {
            Open();
        } else if (name == "EMC") {
            Check(m_depth == 1, "EMC of nothing");
            Check(!m_inText || m_textDepth < m_depth, "a tag ends within a text");
            --m_depth;
        } else if (IsPainting(name)) {
            Check(m_depth == 1, name + " outside of tags");
        }
        m_operands.clear();
    }
    void handleEOF() override { Check(m_depth == 0, "a tag is open at the end"); }

    std::map<long long, std::string> found;  ///< by number, what each is tagged as

private:
    void Open() {
        Check(m_depth == 0, "tags in tags");
        Check(!m_inText, "a tag begins within a text");
        ++m_depth;
        const std::string tag = m_operands.front().getName();
        if (tag != "/Artifact") {
            const long long number =
                m_operands.size() < 2 || !m_operands[1].isDictionary()
                    ? -1
                    : m_operands[1].getKey("/MCID").getIntValue();
            Check(number >= 0, tag + " without a number");
            Check(found.emplace(number, tag).second, "a number twice");
        }
    }
    void Check(bool isRight, const std::string& what) {
        if (!isRight) {
            m_wrong.push_back(m_place + what);
        }
    }

    std::string m_place;
    Lines& m_wrong;
    std::vector<Handle> m_operands;
    int m_depth = 0;
    int m_spans = 0;
    int m_textDepth = 0;
    bool m_inText = false;
};

/// A file that is being looked at.
class Checked {
public:
    explicit Checked(const std::string& path) {
        m_pdf.setSuppressWarnings(true);
        m_pdf.processFile(path.c_str());
        m_root = m_pdf.getRoot();
    }

    Lines AgainstUa() {
        const std::string xmp = Xmp();
        Handle info = m_pdf.getTrailer().getKey("/Info");
        const std::string title = TextAt(info, "/Title");
        Check(!title.empty(), "no title");
        Check(Has(xmp, "<pdfuaid:part>1</pdfuaid:part>"), "no pdfuaid:part");
        Check(Has(xmp, "x-default\">"), "no title in the metadata");
        Check(!TextAt(m_root, "/Lang").empty(), "no language");
        Check(BoolAt(m_root.getKey("/MarkInfo"), "/Marked"), "not marked");
        Check(BoolAt(m_root.getKey("/ViewerPreferences"), "/DisplayDocTitle"),
              "the title is not shown");
        CheckStructure();
        CheckFonts();
        for (const QPDFExc& warning : m_pdf.getWarnings()) {
            m_wrong.emplace_back(warning.what());
        }
        return m_wrong;
    }

    Lines AgainstA() {
        const std::string xmp = Xmp();
        Check(Has(xmp, "<pdfaid:part>2</pdfaid:part>"), "no pdfaid:part");
        Check(Has(xmp, "<pdfaid:conformance>U</pdfaid:conformance>"), "no conformance");
        Check(Has(xmp, "pdfaExtension:schemas"), "pdfuaid is not described");
        Check(m_pdf.getTrailer().getKey("/ID").isArray(), "no identifier");
        Check(m_root.getKey("/Metadata").getDict().getKey("/Filter").isNull(),
              "packed metadata");
        Handle intent = m_root.getKey("/OutputIntents");
        Check(intent.isArray() && intent.getArrayNItems() == 1, "no output intent");
        if (intent.isArray()) {
            intent = intent.getArrayItem(0);
            Check(intent.getKey("/S").getName() == "/GTS_PDFA1", "another intent");
            Handle profile = intent.getKey("/DestOutputProfile");
            Check(profile.isStream() && profile.getDict().getKey("/N").getIntValue() == 3,
                  "no profile");
            Check(profile.isStream() && ContentsOf(profile).substr(36, 4) == "acsp",
                  "a profile that is none");
        }
        for (Handle object : m_pdf.getAllObjects()) {
            CheckForA(object);
        }
        CheckFonts();
        return m_wrong;
    }

    Lines Read() {
        Lines read;
        Walk(m_root.getKey("/StructTreeRoot").getKey("/K"), [&read](Handle element) {
            const std::string tag = element.getKey("/S").getName();
            if (element.hasKey("/Pg")) {
                const char* const key = element.hasKey("/Alt") ? "/Alt" : "/ActualText";
                read.push_back(tag.substr(1) + ": " + TextAt(element, key));
            }
        });
        return read;
    }

    Lines Bookmarks() {
        Lines bookmarks;
        std::map<QPDFObjGen, std::size_t> numbers;
        for (const Handle& page : m_pdf.getAllPages()) {
            numbers.emplace(page.getObjGen(), numbers.size() + 1);
        }
        for (QPDFOutlineObjectHelper& one :
             QPDFOutlineDocumentHelper(m_pdf).getTopLevelOutlines()) {
            bookmarks.push_back(std::to_string(numbers[one.getDestPage().getObjGen()]) +
                                ": " + one.getTitle());
        }
        return bookmarks;
    }

private:
    void Check(bool isRight, const std::string& what) {
        if (!isRight) {
            m_wrong.push_back(what);
        }
    }
    static bool Has(const std::string& text, const std::string& part) {
        return text.find(part) != std::string::npos;
    }
    static std::string TextAt(Handle object, const char* key) {
        Handle text = object.isDictionary() ? object.getKey(key) : Handle::newNull();
        return text.isString() ? text.getUTF8Value() : "";
    }
    static bool BoolAt(Handle object, const char* key) {
        return object.isDictionary() && object.getKey(key).isBool() &&
               object.getKey(key).getBoolValue();
    }
    std::string Xmp() {
        Handle metadata = m_root.getKey("/Metadata");
        return metadata.isStream() ? ContentsOf(metadata) : "";
    }

    /// Every element below one, a parent before its children.
    void Walk(Handle element, const std::function<void(Handle)>& visit) {
        if (element.isArray()) {
            for (int i = 0; i < element.getArrayNItems(); ++i) {
                Walk(element.getArrayItem(i), visit);
            }
        } else if (element.isDictionary()) {
            Check(element.getKey("/P").isDictionary(), "an element without parent");
            visit(element);
            Walk(element.getKey("/K"), visit);
        }
    }

    void CheckStructure() {
        Handle root = m_root.getKey("/StructTreeRoot");
        if (!root.isDictionary()) {
            Check(false, "no structure");
            return;
        }
        Check(root.getKey("/K").getKey("/S").getName() == "/Document", "no document");
        std::set<QPDFObjGen> reached;
        Walk(root.getKey("/K"), [&](Handle element) {
            reached.insert(element.getObjGen());
            if (element.getKey("/S").getName() == "/Figure") {
                Check(!TextAt(element, "/Alt").empty(), "a figure without words");
                Check(element.getKey("/A").getKey("/BBox").isArray(),
                      "a figure without a place");
            }
        });
        Handle numbers = root.getKey("/ParentTree").getKey("/Nums");
        const std::vector<Handle> pages = m_pdf.getAllPages();
        std::size_t tagged = 0;
        for (std::size_t i = 0; i < pages.size(); ++i) {
            CheckPage(pages[i], i, numbers, reached, tagged);
        }
        Check(tagged > 0, "nothing is tagged");
    }

    void CheckPage(Handle page, std::size_t index, Handle numbers,
                   const std::set<QPDFObjGen>& reached, std::size_t& tagged) {
        const std::string place = "page " + std::to_string(index + 1) + ": ";
        Check(page.getKey("/Tabs").isName() && page.getKey("/Tabs").getName() == "/S",
              place + "no order of tabs");
        const auto number = static_cast<int>(index);
        Check(page.getKey("/StructParents").isInteger() &&
                  page.getKey("/StructParents").getIntValue() == number &&
                  numbers.getArrayItem(2 * number).getIntValue() == number,
              place + "not in the tree of parents");
        Handle parents = numbers.getArrayItem(2 * number + 1);
        Tags tags(place, m_wrong);
        page.parsePageContents(&tags);
        Check(static_cast<std::size_t>(parents.getArrayNItems()) == tags.found.size(),
              place + "other tags than in the structure");
        for (const auto& [mcid, tag] : tags.found) {
            Handle element = parents.getArrayItem(static_cast<int>(mcid));
            Check(element.isDictionary() && element.getKey("/S").getName() == tag &&
                      element.getKey("/K").getIntValue() == mcid &&
                      element.getKey("/Pg").getObjGen() == page.getObjGen() &&
                      reached.count(element.getObjGen()) > 0,
                  place + "tag " + std::to_string(mcid) + " is of no element");
            ++tagged;
        }
    }

    void CheckFonts() {
        for (Handle font : m_pdf.getAllObjects()) {
            if (!font.isDictionary() || !font.getKey("/Type").isName() ||
                font.getKey("/Type").getName() != "/Font") {
                continue;
            }
            const std::string name = font.getKey("/BaseFont").unparse();
            Handle described = font;
            if (font.getKey("/Subtype").getName() == "/Type0") {
                described = font.getKey("/DescendantFonts").getArrayItem(0);
                Check(described.getKey("/Subtype").getName() != "/CIDFontType2" ||
                          !described.getKey("/CIDToGIDMap").isNull(),
                      name + " without a map to its glyphs");
            }
            if (described.getKey("/Subtype").getName().rfind("/CIDFont", 0) != 0 ||
                described.getObjGen() != font.getObjGen()) {
                Check(font.getKey("/ToUnicode").isStream(), name + " cannot be read");
            }
            Handle descriptor = described.getKey("/FontDescriptor");
            Check(descriptor.hasKey("/FontFile") || descriptor.hasKey("/FontFile2") ||
                      descriptor.hasKey("/FontFile3"),
                  name + " is not embedded");
        }
    }

    void CheckForA(Handle object) {
        Handle dict = object.isStream() ? object.getDict() : object;
        if (!dict.isDictionary()) {
            return;
        }
        Check(!BoolAt(dict, "/Interpolate"), "an image is interpolated");
        for (const char* key : {"/JavaScript", "/JS", "/AA", "/EmbeddedFiles", "/TR"}) {
            Check(!dict.hasKey(key), std::string("has ") + key);
        }
        Handle filter = dict.getKey("/Filter");
        Check(!filter.isName() || filter.getName() != "/LZWDecode", "LZW");
        Handle device = dict.getKey("/ColorSpace");
        Check(!device.isName() || device.getName() != "/DeviceCMYK", "CMYK");
    }

    QPDF m_pdf;
    Handle m_root;
    Lines m_wrong;
};

}  // namespace

Lines AgainstPdfUa(const std::string& path) { return Checked(path).AgainstUa(); }
Lines AgainstPdfA(const std::string& path) { return Checked(path).AgainstA(); }
Lines ReadAloud(const std::string& path) { return Checked(path).Read(); }
Lines BookmarksOf(const std::string& path) { return Checked(path).Bookmarks(); }

}  // namespace host_tests
