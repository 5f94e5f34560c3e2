#pragma once

#include <string>

#include "page/page.h"

namespace host {

/// What a file says about itself besides its words.
struct FileFacts {
    std::string producer;  ///< the library that wrote it
    std::string creator;   ///< the program that had it written
    std::string date;      ///< "2026-11-22T18:00:00Z"; empty for none
    bool isArchive;        ///< whether it is PDF/A-2u, and not PDF/UA-1 alone
};

/// The words of a page and the facts about its file as an XMP packet.
std::string XmpPacket(const PageAbout& about, const FileFacts& facts);

}  // namespace host
