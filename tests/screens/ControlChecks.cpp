#include "screens/ControlChecks.h"

#include "files/QtText.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace tarn::testing {

namespace {

/// Every text of the screen that may have a mnemonic in force.
QStringList MarkedTexts(const QWidget& screen) {
    QStringList texts;
    for (const auto* button : screen.findChildren<QAbstractButton*>()) {
        texts += button->text();
    }
    for (const auto* group : screen.findChildren<QGroupBox*>()) {
        texts += group->title();
    }
    for (const auto* label : screen.findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            texts += label->text();
        }
    }
    for (const auto* bar : screen.findChildren<QMenuBar*>()) {
        for (const QAction* action : bar->actions()) {
            texts += action->text();
        }
    }
    return texts;
}

std::set<std::string> MnemonicsOf(const QWidget& screen, const std::string& where) {
    std::set<std::string> letters;
    for (const QString& text : MarkedTexts(screen)) {
        const QKeySequence letter = QKeySequence::mnemonic(text);
        if (!letter.isEmpty()) {
            EXPECT_TRUE(letters.insert(FromQt(letter.toString())).second)
                << where << ": " << FromQt(text) << " has the mnemonic of another control";
        }
    }
    return letters;
}

} // namespace

void ExpectMnemonicsOnce(const QWidget& screen, const std::string& where) {
    MnemonicsOf(screen, where);
}

void ExpectNamesAndMnemonicsOnce(const QWidget& screen, std::size_t mnemonics) {
    std::set<std::string> names;
    for (const auto* object : screen.findChildren<QObject*>()) {
        const std::string name = FromQt(object->objectName());
        const bool ofToolkit = name.starts_with("qt_") || name.starts_with("_q_");
        if (!name.empty() && !ofToolkit) {
            EXPECT_TRUE(names.insert(name).second) << name << " is the name of two controls";
        }
    }
    EXPECT_FALSE(names.empty());
    EXPECT_EQ(MnemonicsOf(screen, FromQt(screen.objectName())).size(), mnemonics);
}

} // namespace tarn::testing
