#include "page/output/xmp_packet.h"

namespace host {
namespace {

std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '>':
                escaped += "&gt;";
                break;
            default:
                escaped += c;
        }
    }
    return escaped;
}

/// A property, its text in the containers given: {"rdf:Seq", "rdf:li"}.
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
           " xmlns:pdfuaid=\"http://www.aiim.org/pdfua/ns/id/\">\n"
           "<pdfuaid:part>1</pdfuaid:part>\n"
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
