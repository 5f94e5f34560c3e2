#include "page_editor/trap_raster.h"

#include <gdal_priv.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <memory>

namespace editor_tests {
namespace {

constexpr int kSide = 64;
constexpr int kBands = 3;

void Die() {
    const rlimit noCore = {0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    std::abort();
}

void Hang() {
    for (;;) {
        pause();
    }
}

class TrapBand : public GDALRasterBand {
public:
    TrapBand(GDALDataset* dataset, int band, Trap trap) : m_trap(trap) {
        poDS = dataset;
        nBand = band;
        eDataType = GDT_Byte;
        nBlockXSize = kSide;
        nBlockYSize = 1;
    }

protected:
    CPLErr IReadBlock(int, int, void* pixels) override {
        if (m_trap == Trap::DiesWhenRead) {
            Die();
        }
        if (m_trap == Trap::HangsWhenRead) {
            Hang();
        }
        if (m_trap == Trap::IsSlowToRead) {
            usleep(200'000 / (kSide * kBands));
        }
        std::fill_n(static_cast<GByte*>(pixels), kSide, static_cast<GByte>(50 * nBand));
        return CE_None;
    }

private:
    Trap m_trap;
};

class TrapDataset : public GDALDataset {
public:
    explicit TrapDataset(Trap trap) {
        nRasterXSize = kSide;
        nRasterYSize = kSide;
        for (int band = 1; band <= kBands; ++band) {
            SetBand(band, new TrapBand(this, band, trap));
        }
    }

    static GDALDataset* Open(GDALOpenInfo* info) {
        if (!EQUAL(CPLGetExtension(info->pszFilename), "trap") ||
            info->nHeaderBytes < 1) {
            return nullptr;
        }
        const auto trap = static_cast<Trap>(info->pabyHeader[0] - '0');
        if (trap == Trap::DiesWhenOpened) {
            Die();
        }
        if (trap == Trap::HangsWhenOpened) {
            Hang();
        }
        return new TrapDataset(trap);
    }
};

}  // namespace

void RegisterTraps() {
    auto driver = std::make_unique<GDALDriver>();
    driver->SetDescription("TRAP");
    driver->SetMetadataItem(GDAL_DCAP_RASTER, "YES");
    driver->pfnOpen = TrapDataset::Open;
    GetGDALDriverManager()->RegisterDriver(driver.release());
}

void WriteTrap(const std::string& path, Trap trap) {
    std::ofstream(path) << static_cast<char>('0' + static_cast<int>(trap));
}

}  // namespace editor_tests
