#include "screens/estimate/SearchProgress.h"

#include "base/Numbers.h"

#include <QLabel>
#include <QProgressBar>

namespace tarn {

SearchProgress::SearchProgress(QProgressBar& bar, QLabel& percentage)
    : bar_(bar)
    , percentage_(percentage) {}

bool SearchProgress::CatchUp() {
    yield_.Now();
    return stopped_;
}

void SearchProgress::Started(Long maximum) {
    bar_.setRange(0, maximum);
    bar_.setValue(0);
    percentage_.setText(QStringLiteral("0%"));
    bar_.show();
    percentage_.show();
    yield_.Now();
}

bool SearchProgress::Scored(Long done) {
    bar_.setValue(done);
    const Double share = static_cast<Double>(done) / bar_.maximum();
    percentage_.setText(QString::number(Int(share * 100)) + QLatin1Char('%'));
    yield_.WhenDue();
    return !stopped_;
}

void SearchProgress::Ended() noexcept {
    bar_.hide();
    percentage_.hide();
}

} // namespace tarn
