#pragma once

#include <string_view>

namespace Ondo {

/// The library's version, "major.minor.patch". Configuring fails if it differs
/// from the version of the CMake project.
inline constexpr std::string_view version = "0.1.0";

} // namespace Ondo
