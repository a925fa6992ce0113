#include "paper/Arial.h"

#include <QFont>

namespace tarn {

QFont Arial(int size) {
    QFont font(QStringLiteral("Arial"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(size);
    font.setBold(false);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace tarn
