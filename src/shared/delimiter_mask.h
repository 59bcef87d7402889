// Finds tabs and carriage returns in 64 bytes at once.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace brooklander {

inline constexpr int mask_width = 64;

// The two differ in one bit alone, so that a byte is one of them exactly when it equals a tab
// without that bit.
inline constexpr unsigned char differing_bit = '\t' ^ '\r';
static_assert(std::has_single_bit(differing_bit) && (('\t' & differing_bit) == 0));

// Bit i is set when byte i is a tab or a carriage return. All 64 bytes must be readable. This form
// runs everywhere.
inline std::uint64_t delimiter_mask_anywhere(const char* bytes) {
    constexpr std::uint64_t every_byte = 0x0101010101010101U;
    constexpr std::uint64_t low_bits = every_byte * 0x7FU;
    constexpr std::uint64_t gather_bits = 0x0102040810204080U;
    std::uint64_t mask = 0;
    for (unsigned group = 0; group < 8; ++group) {
        std::uint64_t eight = 0;
        for (unsigned i = 0; i < 8; ++i) {
            eight |= std::uint64_t{static_cast<unsigned char>(bytes[8 * group + i])} << (8 * i);
        }
        const std::uint64_t folded = (eight & ~(every_byte * differing_bit)) ^ (every_byte * '\t');
        const std::uint64_t zeros = ~(((folded & low_bits) + low_bits) | folded | low_bits);
        mask |= (((zeros >> 7U) * gather_bits) >> 56U) << (8 * group);
    }
    return mask;
}

#ifdef __SSE2__

// The same, sixteen bytes at a time.
inline std::uint64_t delimiter_mask(const char* bytes) {
    const __m128i keep = _mm_set1_epi8(static_cast<char>(~differing_bit));
    const __m128i tab = _mm_set1_epi8('\t');
    std::uint64_t mask = 0;
    for (unsigned group = 0; group < 4; ++group) {
        __m128i sixteen;
        std::memcpy(&sixteen, bytes + 16 * group, sizeof sixteen);
        const __m128i equal = _mm_cmpeq_epi8(_mm_and_si128(sixteen, keep), tab);
        const auto bits = static_cast<unsigned>(_mm_movemask_epi8(equal));
        mask |= std::uint64_t{bits} << (16 * group);
    }
    return mask;
}

#else

inline std::uint64_t delimiter_mask(const char* bytes) { return delimiter_mask_anywhere(bytes); }

#endif

}  // namespace brooklander
