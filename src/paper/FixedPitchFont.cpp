#include "paper/FixedPitchFont.h"

#include "project/ReportType.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace tarn {

namespace {

constexpr int MeasuredSize = 1000; ///< large enough for no rounding to matter

QFont FontOf(const QString& face, int size) {
    QFont font(face);
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    font.setPixelSize(size);
    font.setBold(false);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

/// The width of a face's letters, of its size; 0 when they differ.
double AdvanceOf(const QString& face) {
    const QFontMetricsF metrics(FontOf(face, MeasuredSize));
    const double wide = metrics.horizontalAdvance(QLatin1Char('W'));
    const double narrow = metrics.horizontalAdvance(QLatin1Char('i'));
    return std::abs(wide - narrow) < 1 ? wide / MeasuredSize : 0;
}

} // namespace

QFont CourierNew(int size) {
    static const QStringList faces{
        QStringLiteral("Courier New"),     QStringLiteral("Liberation Mono"),
        QStringLiteral("Cousine"),         QStringLiteral("Nimbus Mono PS"),
        QStringLiteral("FreeMono"),        QStringLiteral("Courier 10 Pitch"),
        QStringLiteral("DejaVu Sans Mono")};
    return FixedPitchFont(faces, size);
}

QFont FixedPitchFont(const QStringList& faces, int size) {
    constexpr double SameAdvance = 0.001;
    QString fixed;
    double fixedAdvance = 0;
    for (const QString& face : faces) {
        if (!QFontDatabase::hasFamily(face)) {
            continue;
        }
        const double advance = AdvanceOf(face);
        if (std::abs(advance - CourierAdvance) < SameAdvance) {
            return FontOf(face, size);
        }
        if (fixedAdvance == 0 && advance > 0) {
            fixed = face;
            fixedAdvance = advance;
        }
    }
    if (fixedAdvance == 0) {
        fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
        fixedAdvance = AdvanceOf(fixed);
    }
    const double fitted = fixedAdvance > 0 ? size * CourierAdvance / fixedAdvance : size;
    return FontOf(fixed, std::max(1, static_cast<int>(std::floor(fitted))));
}

} // namespace tarn
