#pragma once

namespace host {

/// How the maps in a file for print are stored.
enum class MapImages {
    Lossless,
    Jpeg,  ///< of quality 90; a satellite image that is not enlarged takes a tenth
};

}  // namespace host
