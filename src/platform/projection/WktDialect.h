#pragma once

/// The text forms of a definition that other software reads.
enum class WktDialect {
    Wkt1Gdal,  ///< OGC 01-009 as GDAL writes it; holds the shift as TOWGS84
    Wkt1Esri,  ///< a shapefile's .prj; can't hold a shift
    Wkt2_2019, ///< ISO 19162:2019; holds the shift as a BOUNDCRS
};
