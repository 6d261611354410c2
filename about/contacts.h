// Where users reach the program's makers.
#pragma once

namespace vistrel::about {

inline constexpr const char* kSupportAddress = "support@vistrel.example.org";
inline constexpr const char* kSuggestionsAddress = "ideas@vistrel.example.org";
inline constexpr const char* kHomePage = "http://www.vistrel.example.org";
inline constexpr const char* kLogoPage = "http://logos.vistrel.example.org";

}  // namespace vistrel::about
