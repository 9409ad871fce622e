#pragma once

/// The keys of an ellipsoid record. All values are texts.
namespace EllipsoidKey {
constexpr const char* name = "ellipsoid_name";
constexpr const char* a = "ellipsoid_a";       ///< semi-major axis in metres
constexpr const char* f = "ellipsoid_f";       ///< inverse flattening
constexpr const char* flag = "ellipsoid_flag"; ///< "0" the user's own; anything else, or missing, shipped and read-only
} // namespace EllipsoidKey

/// The keys of a geoid record.
namespace GeoidKey {
constexpr const char* name = "geoid_name";
constexpr const char* file = "geoid_file"; ///< bare file name in the geoid data folder
constexpr const char* ellipsoid = "geoid_ellipsoid";
constexpr const char* flag = "geoid_flag"; ///< as EllipsoidKey::flag
} // namespace GeoidKey
