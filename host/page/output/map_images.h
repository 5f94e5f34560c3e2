#pragma once

namespace host {

/// How the maps of a file for print are kept.
enum class MapImages {
    Lossless,
    Jpeg,  ///< of quality 90; a satellite image that is not enlarged takes a tenth
};

}  // namespace host
