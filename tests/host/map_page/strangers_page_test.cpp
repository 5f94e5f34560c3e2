// Page files of strangers: whatever they name, nothing outside their folder is opened,
// nothing is written there, and nobody on the network is called.

#include <arpa/inet.h>
#include <cpl_vsi_virtual.h>
#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/inotify.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "map_page/page_file_folder.h"
#include "page/document/item_type.h"

namespace {

namespace fs = std::filesystem;
using host_tests::Arguments;
using host_tests::Result;

/// A server that answers nobody, and knows whether it was called.
class Server {
public:
    Server() : m_socket(socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)) {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        auto* const any = reinterpret_cast<sockaddr*>(&address);
        EXPECT_EQ(bind(m_socket, any, length), 0);
        EXPECT_EQ(listen(m_socket, 100), 0);
        EXPECT_EQ(getsockname(m_socket, any, &length), 0);
        m_place = "127.0.0.1:" + std::to_string(ntohs(address.sin_port));
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;
    ~Server() { close(m_socket); }

    const std::string& Place() const { return m_place; }

    bool WasCalled() const {
        const int caller = accept(m_socket, nullptr, nullptr);
        if (caller >= 0) {
            close(caller);
        }
        return caller >= 0;
    }

private:
    int m_socket;
    std::string m_place;
};

/// A folder in which it is noticed when anything is opened, read, made or changed.
class WatchedFolder {
public:
    explicit WatchedFolder(const std::string& folder)
        : m_descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
        EXPECT_GE(inotify_add_watch(m_descriptor, folder.c_str(), IN_ALL_EVENTS), 0);
    }
    WatchedFolder(const WatchedFolder&) = delete;
    WatchedFolder& operator=(const WatchedFolder&) = delete;
    ~WatchedFolder() { close(m_descriptor); }

    bool WasTouched() const {
        std::array<char, 65536> events{};
        bool touched = false;
        while (read(m_descriptor, events.data(), events.size()) > 0) {
            touched = true;
        }
        return touched;
    }

private:
    int m_descriptor;
};

/// A folder `maps` for the page file, with a.tif, and a folder `other` with the canary.
class StrangersPage : public host_tests::MapPageTest {
protected:
    StrangersPage() {
        GDALAllRegister();
        for (const char* name : {"maps", "other"}) {
            fs::create_directory(folder.Path(name));
        }
        WriteScene(folder.Path("maps/a.tif"), 40, 30);
        WriteScene(Canary(), 40, 30);
        const std::string zipped =
            "/vsizip/" + folder.Path("other/a.zip") + "/canary.tif";
        EXPECT_EQ(CPLCopyFile(zipped.c_str(), Canary().c_str()), 0);
        WriteReferences();
    }

    std::string Canary() const { return folder.Path("other/canary.tif"); }
    std::string Url() const { return "http://" + server.Place() + "/canary.tif"; }

    /// Files below the folder that lead out of it.
    void WriteReferences() {
        const auto vrt = [](const std::string& inside) {
            return "<VRTDataset rasterXSize=\"40\" rasterYSize=\"30\"><VRTRasterBand "
                   "dataType=\"Byte\" band=\"1\"" +
                   inside + "</VRTRasterBand></VRTDataset>";
        };
        const auto simple = [&vrt](const std::string& source) {
            return vrt("><SimpleSource><SourceFilename>" + source +
                       "</SourceFilename></SimpleSource>");
        };
        const auto add = [this](const std::string& name, const std::string& text) {
            Write("maps/" + name, text);
            references.push_back(name);
        };
        add("file.vrt", simple(Canary()));
        add("service.vrt", simple("/vsicurl/" + Url()));
        add("nested.vrt", simple("file.vrt"));
        add("raw.vrt", vrt(" subClass=\"VRTRawRasterBand\"><SourceFilename>" + Canary() +
                           "</SourceFilename>"));
        add("wms.xml",
            "<GDAL_WMS><Service name=\"TMS\"><ServerUrl>http://" + server.Place() +
                "/${z}/${x}/${y}.png</ServerUrl></Service><DataWindow><UpperLeftX>0"
                "</UpperLeftX><UpperLeftY>9</UpperLeftY><LowerRightX>9</LowerRightX>"
                "<LowerRightY>0</LowerRightY><SizeX>40</SizeX><SizeY>30</SizeY>"
                "</DataWindow><Projection>EPSG:4326</Projection><BandsCount>3</"
                "BandsCount>"
                "<Cache><Path>" +
                folder.Path("other") + "</Path></Cache></GDAL_WMS>");
        fs::copy_file(folder.Path("maps/a.tif"), folder.Path("maps/overviews.tif"));
        Write("maps/overviews.tif.aux.xml",
              "<PAMDataset><Metadata domain=\"OVERVIEWS\"><MDI key=\"OVERVIEW_FILE\">" +
                  Canary() + "</MDI></Metadata></PAMDataset>");
        fs::create_symlink(Canary(), folder.Path("maps/link.tif"));
        fs::copy_file(folder.Path("maps/a.tif"), folder.Path("maps/side.tif"));
        fs::create_symlink(Canary(), folder.Path("maps/side.tif.ovr"));
        mkfifo(folder.Path("maps/pipe.tif").c_str(), 0600);
        for (const char* name : {"link.tif", "pipe.tif"}) {
            references.emplace_back(name);
        }
    }

    /// Whatever a name can be.
    std::vector<std::string> Names() const {
        std::vector<std::string> names = references;
        const std::string zip = folder.Path("other/a.zip") + "/canary.tif";
        names.insert(
            names.end(),
            {Canary(), "../other/canary.tif", "/etc/passwd", "/proc/self/environ",
             "/dev/zero", Url(), "ftp://" + server.Place() + "/canary.tif",
             "<VRTDataset><SourceFilename>" + Canary() + "</SourceFilename></VRTDataset>",
             "/vsizip/" + zip, "/vsigzip//vsizip/" + zip,
             "/vsisubfile/0_100," + Canary()});
        GDALDriverManager& drivers = *GetGDALDriverManager();
        for (int i = 0; i < drivers.GetDriverCount(); ++i) {
            GDALDriver* const driver = drivers.GetDriver(i);
            const char* const prefix =
                driver->GetMetadataItem(GDAL_DMD_CONNECTION_PREFIX);
            const std::string begin = prefix != nullptr && *prefix != '\0'
                                          ? prefix
                                          : driver->GetDescription() + std::string(":");
            names.push_back(begin + Url());
            names.push_back(begin + Canary());
            names.push_back(begin + "\"" + Canary() + "\":x");
        }
        const CPLStringList folders(VSIFileManager::GetPrefixes());
        for (int i = 0; i < folders.size(); ++i) {
            if (folders[i] != std::string("/vsimem/")) {
                names.push_back(folders[i] + Url());
                names.push_back(folders[i] + Canary());
            }
        }
        return names;
    }

    /// The elements, each with a place for a name, that name a file.
    static std::vector<std::string> Keys() {
        std::vector<std::string> keys;
        for (const host::ItemType& type : host::ItemTypes()) {
            for (const host::Property& property : type.properties) {
                const std::string begin =
                    R"({"type": ")" + std::string(type.name) +
                    R"(", "frame": {"width": 90, "height": 60}, ")" + property.name +
                    "\": ";
                if (property.kind == host::PropertyKind::Rasters) {
                    keys.push_back(begin + "[\"a.tif\", @]}");
                } else if (property.kind == host::PropertyKind::File) {
                    keys.push_back(begin + "@}");
                }
            }
        }
        return keys;
    }

    /// All that lies in the folder and below it.
    std::vector<std::string> AllNames() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(folder.Path())) {
            names.push_back(entry.path().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    /// As a JSON text or as a field of a list has it.
    static std::string Escaped(const std::string& name, int scheme) {
        char* const text = CPLEscapeString(name.c_str(), -1, scheme);
        std::string escaped = text;
        CPLFree(text);
        return escaped;
    }
    static std::string Quoted(const std::string& name) {
        return '"' + Escaped(name, CPLES_BackslashQuotable) + '"';
    }

    void WritePage(const std::string& element) const {
        Write("maps/page.json",
              R"({"version": 2, "width": 200, "height": 150, "elements": [)" + element +
                  "]}");
    }
    Arguments Draw(const Arguments& more = {}) const {
        return "maps/page.json -o page.png --dpi 20 --limit-time 20" + more;
    }

    /// Draws it and fails unless that is refused, in one line.
    void ExpectRefused(const Arguments& arguments, const std::string& what) const {
        fs::remove(folder.Path("page.png"));
        const Result result = Run(arguments);
        EXPECT_EQ(result.status, 1) << what;
        EXPECT_EQ(result.out, "") << what;
        EXPECT_EQ(result.err.find("limit of"), std::string::npos) << result.err;
        EXPECT_FALSE(fs::exists(folder.Path("page.png"))) << what;
    }

    Server server;
    std::vector<std::string> references;
};

/// How many names are left out between two that are tried; 1 for all.
std::size_t Step() { return std::getenv("STRANGERS") != nullptr ? 1 : 29; }

// GDI+ looks at neither of these when they are pictures.
TEST_F(StrangersPage, HasNoOverviewsElsewhere) {
    const WatchedFolder other(folder.Path("other"));
    for (const char* name : {"overviews.tif", "side.tif"}) {
        WritePage(R"({"type": "map", "rasters": [")" + std::string(name) + "\"]}");
        ExpectRefused(Draw(), name);
        WritePage(R"({"type": "picture", "path": ")" + std::string(name) + "\"}");
        EXPECT_EQ(Run(Draw()).status, 0) << name;
    }
    EXPECT_FALSE(other.WasTouched());
}

// In parts, which run at the same time.
constexpr std::size_t kParts = 4;
class StrangersPagePart : public StrangersPage,
                          public ::testing::WithParamInterface<std::size_t> {};

TEST_P(StrangersPagePart, ReachesNobodyAndReadsNothingElsewhere) {
    const std::vector<std::string> keys = Keys();
    ASSERT_EQ(keys.size(), 3U) << "of maps, legends and pictures";
    const std::vector<std::string> names = Names();
    const std::vector<std::string> before = AllNames();
    const WatchedFolder other(folder.Path("other"));
    std::size_t tried = 0;
    std::size_t turn = 0;
    for (std::size_t i = 0; i < names.size(); i += i < references.size() ? 1 : Step()) {
        if (turn++ % kParts != GetParam()) {
            continue;
        }
        for (const std::string& key : keys) {
            std::string element = key;
            WritePage(element.replace(element.find('@'), 1, Quoted(names[i])));
            ExpectRefused(Draw(), element);
            ++tried;
        }
        WritePage(R"({"type": "map"})");
        Write("maps/list.csv", "name,rasters\nx," + Escaped(names[i], CPLES_CSV) + "\n");
        Arguments series = Draw("--series maps/list.csv");
        series[2] = "{name}.png";
        ExpectRefused(series, names[i]);
        EXPECT_FALSE(server.WasCalled()) << names[i];
        EXPECT_FALSE(other.WasTouched()) << names[i];
    }
    fs::remove(folder.Path("maps/page.json"));
    fs::remove(folder.Path("maps/list.csv"));
    EXPECT_EQ(AllNames(), before);
    EXPECT_GT(tried, 0U);
    std::printf("%zu pages and %zu lists of strangers\n", tried, tried / keys.size());
}
INSTANTIATE_TEST_SUITE_P(Part, StrangersPagePart,
                         ::testing::Range(std::size_t{0}, kParts));

// That the trial would notice.
TEST_F(StrangersPage, DoesSoWhereTheCallerAllowsIt) {
    const WatchedFolder other(folder.Path("other"));
    const auto write = [this](const std::string& raster) {
        WritePage(
            R"({"type": "map", "frame": {"width": 90, "height": 60}, "rasters": [)" +
            Quoted(raster) + "]}");
    };
    const struct {
        const char* raster;
        Arguments allowed;
        bool isDrawn;
    } rows[] = {
        {"link.tif", "--allow-outside other", true},
        {"file.vrt", "--allow-outside other/canary.tif", true},
        {"raw.vrt", "--allow-outside other", false},
        {"raw.vrt", "--allow-all", true},
        // Services do not open files elsewhere either.
        {"link.tif", "--allow-remote", false},
    };
    for (const auto& row : rows) {
        write(row.raster);
        if (row.isDrawn) {
            RunWell(Draw(row.allowed));
        } else {
            ExpectRefused(Draw(row.allowed), row.raster);
        }
        EXPECT_EQ(other.WasTouched(), row.isDrawn) << row.raster << row.allowed.front();
    }

    Arguments briefly = Draw("--allow-remote");
    briefly[6] = "1";
    write("/vsicurl/" + Url());
    EXPECT_EQ(Run(briefly).status, 1);
    EXPECT_TRUE(server.WasCalled());
    while (server.WasCalled()) {
    }
    ExpectRefused(Draw(), "/vsicurl/");
    EXPECT_FALSE(server.WasCalled());
}

}  // namespace
