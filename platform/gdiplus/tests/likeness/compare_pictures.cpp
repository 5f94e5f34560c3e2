/// Compares the pictures of two folders pixel by pixel: a table of how far each differs,
/// and the worst of them side by side.
///
///     compare_pictures FOLDER OTHER [--most-percent P] [--worst FILE]

#include <gdiplus.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

constexpr CLSID kPng = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0, 0, 0xF8, 0x1E, 0xF3, 0x2E}};

struct Difference {
    std::string name;
    double percent = 100.0;  ///< of pixels that differ by more than rounding
    int far = 0;             ///< pixels that differ by more than a quarter
    int most = 255;          ///< the greatest difference of a channel
};

int Apart(Gdiplus::ARGB a, Gdiplus::ARGB b) {
    int most = 0;
    for (int shift = 0; shift < 32; shift += 8) {
        most = std::max(most, std::abs(static_cast<int>(a >> shift & 255) -
                                       static_cast<int>(b >> shift & 255)));
    }
    return most;
}

class Picture {
public:
    explicit Picture(const fs::path& file) : bitmap(file.wstring().c_str()) {
        if (bitmap.LockBits(nullptr, Gdiplus::ImageLockModeRead, PixelFormat32bppARGB,
                            &data_) != Gdiplus::Ok) {
            data_ = Gdiplus::BitmapData();
        }
    }
    ~Picture() { bitmap.UnlockBits(&data_); }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    UINT Width() const { return data_.Width; }
    UINT Height() const { return data_.Height; }
    const Gdiplus::ARGB* Row(UINT y) const {
        const auto* first = static_cast<const BYTE*>(data_.Scan0);
        return reinterpret_cast<const Gdiplus::ARGB*>(
            first + static_cast<std::ptrdiff_t>(y) * data_.Stride);
    }

    Gdiplus::Bitmap bitmap;

private:
    Gdiplus::BitmapData data_;
};

Difference Compare(const fs::path& file, const fs::path& other, const std::string& name) {
    constexpr int rounding = 2;
    constexpr int quarter = 64;
    const Picture a(file);
    const Picture b(other);
    Difference difference;
    difference.name = name;
    if (a.Width() == 0 || a.Width() != b.Width() || a.Height() != b.Height()) {
        return difference;
    }
    int differ = 0;
    difference.most = 0;
    for (UINT y = 0; y < a.Height(); ++y) {
        for (UINT x = 0; x < a.Width(); ++x) {
            const int apart = Apart(a.Row(y)[x], b.Row(y)[x]);
            differ += apart > rounding ? 1 : 0;
            difference.far += apart > quarter ? 1 : 0;
            difference.most = std::max(difference.most, apart);
        }
    }
    difference.percent = 100.0 * differ / (double(a.Width()) * a.Height());
    return difference;
}

bool SaveSideBySide(const fs::path& file, const fs::path& other, const fs::path& to) {
    Gdiplus::Bitmap a(file.wstring().c_str());
    Gdiplus::Bitmap b(other.wstring().c_str());
    const auto width = static_cast<INT>(a.GetWidth());
    const auto height = static_cast<INT>(std::max(a.GetHeight(), b.GetHeight()));
    Gdiplus::Bitmap both(width + static_cast<INT>(b.GetWidth()), height);
    Gdiplus::Graphics graphics(&both);
    graphics.Clear(Gdiplus::Color::White);
    graphics.DrawImage(&a, 0, 0, width, static_cast<INT>(a.GetHeight()));
    graphics.DrawImage(&b, width, 0, static_cast<INT>(b.GetWidth()),
                       static_cast<INT>(b.GetHeight()));
    return both.Save(to.wstring().c_str(), &kPng, nullptr) == Gdiplus::Ok;
}

int Run(const std::vector<std::string>& arguments) {
    const fs::path folder = arguments[0];
    const fs::path other = arguments[1];
    double mostPercent = 100.0;
    fs::path worst;
    for (std::size_t i = 2; i + 1 < arguments.size(); i += 2) {
        if (arguments[i] == "--most-percent") {
            mostPercent = std::strtod(arguments[i + 1].c_str(), nullptr);
        } else if (arguments[i] == "--worst") {
            worst = arguments[i + 1];
        }
    }
    std::vector<Difference> differences;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.path().extension() == ".png") {
            const fs::path name = fs::relative(entry.path(), folder);
            differences.push_back(Compare(entry.path(), other / name, name.string()));
        }
    }
    if (differences.empty()) {
        std::fprintf(stderr, "compare_pictures: %s: no pictures\n", folder.c_str());
        return 2;
    }
    std::sort(differences.begin(), differences.end(),
              [](const auto& a, const auto& b) { return a.percent > b.percent; });
    std::printf("pixels that differ  by over 64  most  picture\n");
    bool alike = true;
    for (const Difference& d : differences) {
        std::printf("%17.3f%%  %10d  %4d  %s\n", d.percent, d.far, d.most,
                    d.name.c_str());
        alike = alike && d.percent <= mostPercent;
    }
    const std::string& name = differences.front().name;
    if (!worst.empty() && !SaveSideBySide(folder / name, other / name, worst)) {
        std::fprintf(stderr, "compare_pictures: %s: cannot be written\n", worst.c_str());
        return 2;
    }
    return alike ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() < 2) {
        std::fprintf(stderr,
                     "usage: compare_pictures FOLDER OTHER [--most-percent P] "
                     "[--worst FILE]\n");
        return 2;
    }
    const Gdiplus::GdiplusStartupInput input;
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    const int result = Run(arguments);
    Gdiplus::GdiplusShutdown(token);
    return result;
}
