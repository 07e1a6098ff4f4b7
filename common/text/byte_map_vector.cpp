// Translation of bytes with AVX2 or AVX-512, chosen at run time.
#include "text/byte_map_vector.h"

#if defined(__x86_64__) || defined(__i386__)

#include <immintrin.h>

#include <cstdint>

namespace kz {
namespace {

constexpr std::size_t kAvx2Width = 32;
constexpr std::size_t kAvx512Width = 64;

// The changes of the rows [first, last) to 32 codes. `index` is each code's distance from the first
// code of row `first`, negative for codes outside the rows' half. A shuffle looks up 16 codes at
// once and gives 0 for a negative index; the index falls by 16 at each row and saturates, so that a
// code collects the changes of the rows up to its own.
__attribute__((target("avx2"), always_inline)) inline __m256i changes_of_rows(
    const Translation& translation, std::size_t first, std::size_t last, __m256i index) {
  __m256i changes = _mm256_setzero_si256();
  for (std::size_t row = first; row < last; ++row) {
    const auto* codes = reinterpret_cast<const __m128i*>(translation.row_changes[row].data());
    const __m256i looked_up =
        _mm256_shuffle_epi8(_mm256_broadcastsi128_si256(_mm_load_si128(codes)), index);
    changes = _mm256_xor_si256(changes, looked_up);
    index = _mm256_subs_epi8(index, _mm256_set1_epi8(16));
  }
  return changes;
}

template <bool KeepsAscii>
__attribute__((target("avx2"))) std::size_t translate_avx2(const char* source, char* destination,
                                                           std::size_t size,
                                                           const Translation& translation) {
  std::size_t i = 0;
  for (; i + kAvx2Width <= size; i += kAvx2Width) {
    const __m256i codes = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(source + i));
    const __m256i from_128 = _mm256_xor_si256(codes, _mm256_set1_epi8(-128));
    __m256i result = _mm256_xor_si256(codes, changes_of_rows(translation, 8, 16, from_128));
    if constexpr (!KeepsAscii) {
      const __m256i from_64 = _mm256_subs_epi8(codes, _mm256_set1_epi8(64));
      constexpr std::size_t kRowOf64 = Translation::kFirstRow;
      result = _mm256_xor_si256(result, changes_of_rows(translation, kRowOf64, 8, from_64));
    }
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(destination + i), result);
  }
  return i;
}

__attribute__((target("avx512bw,avx512vbmi"))) std::size_t translate_avx512(
    const char* source, char* destination, std::size_t size, const Translation& translation) {
  const unsigned char* codes = translation.codes.data();
  const __m512i row_0 = _mm512_loadu_si512(codes);
  const __m512i row_64 = _mm512_loadu_si512(codes + 64);
  const __m512i row_128 = _mm512_loadu_si512(codes + 128);
  const __m512i row_192 = _mm512_loadu_si512(codes + 192);
  for (std::size_t i = 0; i < size; i += kAvx512Width) {
    const std::size_t rest = size - i;
    const std::uint64_t valid = rest >= kAvx512Width ? ~std::uint64_t{0}  //
                                                     : (std::uint64_t{1} << rest) - 1;
    const __m512i text = _mm512_maskz_loadu_epi8(valid, source + i);
    const __m512i below_128 = _mm512_permutex2var_epi8(row_0, text, row_64);
    const __m512i from_128 = _mm512_permutex2var_epi8(row_128, text, row_192);
    const __m512i result = _mm512_mask_blend_epi8(_mm512_movepi8_mask(text), below_128, from_128);
    _mm512_mask_storeu_epi8(destination + i, valid, result);
  }
  return size;
}

}  // namespace

VectorCode best_vector_code() {
  if (!__builtin_cpu_supports("avx2")) return VectorCode::none;
  const bool has_avx512 =
      __builtin_cpu_supports("avx512bw") != 0 && __builtin_cpu_supports("avx512vbmi") != 0;
  return has_avx512 ? VectorCode::avx512 : VectorCode::avx2;
}

std::size_t translate_vectors(VectorCode code, const char* source, char* destination,
                              std::size_t size, const Translation& translation) {
  switch (code) {
    case VectorCode::none: return 0;
    case VectorCode::avx512: return translate_avx512(source, destination, size, translation);
    case VectorCode::avx2: break;
  }
  return translation.keeps_ascii ? translate_avx2<true>(source, destination, size, translation)
                                 : translate_avx2<false>(source, destination, size, translation);
}

}  // namespace kz

#else

namespace kz {

VectorCode best_vector_code() { return VectorCode::none; }

std::size_t translate_vectors(VectorCode, const char*, char*, std::size_t, const Translation&) {
  return 0;
}

}  // namespace kz

#endif
