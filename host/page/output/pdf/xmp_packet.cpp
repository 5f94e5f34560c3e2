#include "page/output/pdf/xmp_packet.h"

#include <cpl_string.h>

#include <memory>

namespace host {
namespace {

/// The declaration of PDF/A, and of the property of PDF/UA, which PDF/A does not know by
/// itself.
constexpr const char* kArchive = R"(<pdfaid:part>2</pdfaid:part>
<pdfaid:conformance>U</pdfaid:conformance>
<pdfaExtension:schemas xmlns:pdfaExtension="http://www.aiim.org/pdfa/ns/extension/"
 xmlns:pdfaSchema="http://www.aiim.org/pdfa/ns/schema#"
 xmlns:pdfaProperty="http://www.aiim.org/pdfa/ns/property#">
<rdf:Bag><rdf:li rdf:parseType="Resource">
<pdfaSchema:schema>PDF/UA identification schema</pdfaSchema:schema>
<pdfaSchema:namespaceURI>http://www.aiim.org/pdfua/ns/id/</pdfaSchema:namespaceURI>
<pdfaSchema:prefix>pdfuaid</pdfaSchema:prefix>
<pdfaSchema:property><rdf:Seq><rdf:li rdf:parseType="Resource">
<pdfaProperty:name>part</pdfaProperty:name>
<pdfaProperty:valueType>Integer</pdfaProperty:valueType>
<pdfaProperty:category>internal</pdfaProperty:category>
<pdfaProperty:description>Part of ISO 14289</pdfaProperty:description>
</rdf:li></rdf:Seq></pdfaSchema:property>
</rdf:li></rdf:Bag>
</pdfaExtension:schemas>
)";

std::string Escaped(const std::string& text) {
    const std::unique_ptr<char, decltype(&VSIFree)> escaped(
        CPLEscapeString(text.c_str(), static_cast<int>(text.size()),
                        CPLES_XML_BUT_QUOTES),
        &VSIFree);
    return escaped.get();
}

/// A property, with its text in nested containers: {"rdf:Seq", "rdf:li"}.
std::string Simple(const std::string& name, const std::string& text,
                   const std::string& before = "", const std::string& after = "") {
    return text.empty()
               ? ""
               : "<" + name + ">" + before + Escaped(text) + after + "</" + name + ">\n";
}

std::string InLanguages(const std::string& name, const std::string& text) {
    return Simple(name, text, "<rdf:Alt><rdf:li xml:lang=\"x-default\">",
                  "</rdf:li></rdf:Alt>");
}

std::string Listed(const std::string& name, const std::string& list,
                   const std::string& text) {
    return Simple(name, text, "<rdf:" + list + "><rdf:li>",
                  "</rdf:li></rdf:" + list + ">");
}

}  // namespace

std::string XmpPacket(const PageAbout& about, const FileFacts& facts) {
    return "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
           "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
           "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
           "<rdf:Description rdf:about=\"\""
           " xmlns:dc=\"http://purl.org/dc/elements/1.1/\""
           " xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\""
           " xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\""
           " xmlns:pdfuaid=\"http://www.aiim.org/pdfua/ns/id/\""
           " xmlns:pdfaid=\"http://www.aiim.org/pdfa/ns/id/\">\n"
           "<pdfuaid:part>1</pdfuaid:part>\n" +
           std::string(facts.isArchive ? kArchive : "") +
           "<dc:format>application/pdf</dc:format>\n" +
           InLanguages("dc:title", about.title) +
           Listed("dc:creator", "Seq", about.author) +
           InLanguages("dc:description", about.subject) +
           Listed("dc:language", "Bag", about.language) +
           Simple("pdf:Keywords", about.keywords) +
           Simple("pdf:Producer", facts.producer) +
           Simple("xmp:CreatorTool", facts.creator) +
           Simple("xmp:CreateDate", facts.date) + Simple("xmp:ModifyDate", facts.date) +
           "</rdf:Description>\n</rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"r\"?>\n";
}

}  // namespace host
