#include "raster_data/derived_dataset.h"

#include <cpl_string.h>
#include <gdal_priv.h>
#include <gdal_utils.h>

#include <stdexcept>

#include "raster_data/gdal_session.h"

namespace host {
namespace {

CPLStringList ListOf(const std::vector<std::string>& arguments) {
    CPLStringList list;
    for (const std::string& argument : arguments) {
        list.AddString(argument.c_str());
    }
    return list;
}

std::shared_ptr<GDALDataset> Checked(GDALDatasetH made, const GDALDataset& from,
                                     const QuietGdal& quiet) {
    std::shared_ptr<GDALDataset> dataset(GDALDataset::FromHandle(made), ReleaseDataset());
    if (dataset == nullptr) {
        throw std::runtime_error(quiet.Reason(from.GetDescription()));
    }
    return dataset;
}

}  // namespace

void ReleaseDataset::operator()(GDALDataset* dataset) const {
    if (dataset != nullptr) {
        const QuietGdal quiet;
        dataset->ReleaseRef();
    }
}

std::shared_ptr<GDALDataset> Translated(GDALDataset& dataset,
                                        const std::vector<std::string>& arguments) {
    const QuietGdal quiet;
    CPLStringList list = ListOf(arguments);
    list.AddString("-of");
    list.AddString("VRT");
    const std::unique_ptr<GDALTranslateOptions, decltype(&GDALTranslateOptionsFree)>
        options(GDALTranslateOptionsNew(list.List(), nullptr), GDALTranslateOptionsFree);
    return Checked(
        GDALTranslate("", GDALDataset::ToHandle(&dataset), options.get(), nullptr),
        dataset, quiet);
}

std::shared_ptr<GDALDataset> TurnedNorthUp(GDALDataset& dataset) {
    const QuietGdal quiet;
    CPLStringList list = ListOf({"-of", "VRT", "-r", "near"});
    GDALRasterBand* const band = dataset.GetRasterBand(1);
    int hasNoData = FALSE;
    band->GetNoDataValue(&hasNoData);
    if (hasNoData == FALSE && band->GetRasterDataType() == GDT_Byte) {
        list.AddString("-dstalpha");
    } else if (hasNoData == FALSE) {
        // Most other types cannot be masked by an alpha band in GDAL.
        for (const char* argument : {"-ot", "Float64", "-dstnodata", "nan"}) {
            list.AddString(argument);
        }
    }
    const std::unique_ptr<GDALWarpAppOptions, decltype(&GDALWarpAppOptionsFree)> options(
        GDALWarpAppOptionsNew(list.List(), nullptr), GDALWarpAppOptionsFree);
    GDALDatasetH source = GDALDataset::ToHandle(&dataset);
    return Checked(GDALWarp("", nullptr, 1, &source, options.get(), nullptr), dataset,
                   quiet);
}

}  // namespace host
