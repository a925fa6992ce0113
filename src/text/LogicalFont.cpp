#include "text/LogicalFont.h"

#include "text/AnsiText.h"

#include <QString>

namespace tarn {

namespace {

constexpr std::size_t FaceNameLength = 50;
constexpr unsigned BitsOfByte = 8;

// The fields in their order. The face name follows them.
constexpr std::array LongFields{&FontRecord::Height, &FontRecord::Width, &FontRecord::Escapement,
                                &FontRecord::Orientation, &FontRecord::Weight};
constexpr std::array ByteFields{&FontRecord::Italic,          &FontRecord::UnderLine,
                                &FontRecord::StrikeOut,       &FontRecord::CharacterSet,
                                &FontRecord::OutputPrecision, &FontRecord::ClipPrecision,
                                &FontRecord::Quality,         &FontRecord::PitchAndFamily};

static_assert(LongFields.size() * sizeof(Long) + ByteFields.size() + FaceNameLength ==
              std::tuple_size_v<LogicalFont>);

/// The 50 characters of a name's field.
std::u32string FieldOf(std::string_view name) {
    std::u32string field =
        QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())).toStdU32String();
    field.resize(FaceNameLength, U' ');
    return field;
}

} // namespace

void FontRecord::SetFace(std::string_view name) {
    FaceName = FaceField(name);
}

std::string FaceField(std::string_view name) {
    return QString::fromStdU32String(FieldOf(name)).toStdString();
}

std::string FaceIn(std::string_view field) {
    std::string face(field.substr(0, field.find('\0')));
    face.resize(face.find_last_not_of(' ') + 1);
    return face;
}

LogicalFont EncodeFont(const FontRecord& record) {
    LogicalFont font{};
    auto* at = font.begin();
    for (const auto field : LongFields) {
        auto rest = static_cast<std::uint32_t>(record.*field);
        for (std::size_t i = 0; i < sizeof rest; ++i, rest >>= BitsOfByte) {
            *at++ = static_cast<std::uint8_t>(rest);
        }
    }
    for (const auto field : ByteFields) {
        *at++ = record.*field;
    }
    for (const char32_t character : FieldOf(record.FaceName)) {
        *at++ = ToAnsi(character);
    }
    return font;
}

FontRecord DecodeFont(const LogicalFont& font) {
    FontRecord record;
    const auto* at = font.begin();
    for (const auto field : LongFields) {
        std::uint32_t value = 0;
        for (unsigned i = 0; i < sizeof value; ++i) {
            value |= std::uint32_t{*at++} << (i * BitsOfByte);
        }
        record.*field = static_cast<Long>(value);
    }
    for (const auto field : ByteFields) {
        record.*field = *at++;
    }
    std::u32string face;
    while (at != font.end()) {
        face += FromAnsi(*at++);
    }
    record.FaceName = QString::fromStdU32String(face).toStdString();
    return record;
}

} // namespace tarn
