#include "engine/SearchProgress.h"

#include "app/Numbers.h"

#include <QLabel>
#include <QProgressBar>

namespace tarn {

SearchProgress::SearchProgress(QProgressBar& bar, QLabel& percentage,
                               std::function<void()> finished)
    : bar_(bar)
    , percentage_(percentage)
    , finished_(std::move(finished)) {}

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

/// What the user did until now was meant for the search: it must not wait for the screen below.
void SearchProgress::Finished() {
    yield_.Now();
    if (!stopped_) {
        finished_();
    }
}

} // namespace tarn
