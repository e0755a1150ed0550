// Whether the code runs under AddressSanitizer. Memory then comes from the plain allocation functions, so that no
// defect is hidden.
#pragma once

namespace Vorq {

#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kIsAddressSanitized = true;
#elif defined(__has_feature)
inline constexpr bool kIsAddressSanitized = __has_feature(address_sanitizer);
#else
inline constexpr bool kIsAddressSanitized = false;
#endif

}  // namespace Vorq
