#include "page/output/pdf/pdf_file.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <string>

#include "page/twelve_elements.h"
#include "page/words/page_words.h"
#include "system/gdiplus_session.h"
#include "system/memory_file.h"
#include "system/separate_process.h"

namespace {

/// What a process that writes a file of so many pages holds at most, in kB.
int PeakOfPages(int count) {
    return std::stoi(host::InSeparateProcess("drawing", [count](const host::Progress&) {
        const host::GdiplusSession session;
        const host::MemoryFile draft;
        host::PdfFile file(draft.Descriptor(), {20.0});
        host::PageAbout about;
        for (int i = 0; i < count; ++i) {
            const host::Page page = host_tests::TwelveElements();
            about = host::WordsOf(page).about;
            file.Add(page);
        }
        file.Finish(about, [](const std::vector<std::uint8_t>&) {});
        rusage used = {};
        getrusage(RUSAGE_SELF, &used);
        return std::to_string(used.ru_maxrss);
    }));
}

TEST(PdfFile, TakesNoMoreMemoryForMorePages) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer's own memory would be measured";
#endif
    constexpr int kFew = 10;
    constexpr int kMany = 110;
    const int few = PeakOfPages(kFew);
    const int many = PeakOfPages(kMany);
    ASSERT_GT(few, 0);
    constexpr int kMost = 16;  // kB: a page's words, and where its objects lie
    EXPECT_LT(many - few, (kMany - kFew) * kMost);
    RecordProperty("bytes_a_page", (many - few) * 1024 / (kMany - kFew));
}

}  // namespace
