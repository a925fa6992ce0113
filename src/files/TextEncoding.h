// Texts of other programs, in whatever encoding, as UTF-8.

#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

/// No encoding has that name; what() says so.
class UnknownEncoding : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Bytes of a text that are no character of its encoding.
struct MisfitBytes {
    long long Line = 1;   ///< from 1
    long long Column = 1; ///< the character that they would be, from 1
    std::string Bytes;    ///< "0x81"

    bool operator==(const MisfitBytes&) const = default;
};

/// Most misfits of a text that are told.
inline constexpr std::size_t MostMisfits = 20;

/// A text as UTF-8.
struct DecodedText {
    std::string Utf8;                 ///< a misfit is U+FFFD in it
    std::string Encoding;             ///< what it was read as
    std::vector<MisfitBytes> Misfits; ///< the first MostMisfits
    long long MoreMisfits = 0;        ///< how many more there are
};

/// Decode a text. A byte-order mark says what it is, UTF-8 or UTF-16 in either order, and is left
/// out. Without one it is in `encoding`, a name that iconv(3) knows; with an empty name it counts
/// as UTF-8 and is not looked through: its misfits stay in it. Lines end in CR LF, LF or CR. Raises
/// UnknownEncoding for a name that is none.
DecodedText DecodeText(std::string_view bytes, const std::string& encoding);

} // namespace tarn
