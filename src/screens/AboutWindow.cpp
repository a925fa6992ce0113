#include "screens/AboutWindow.h"

#include "base/Version.h"
#include "base/Words.h"
#include "files/QtText.h"
#include "screens/Arrangement.h"
#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/Display.h"
#include "screens/Preferences.h"
#include "screens/Theme.h"
#include "store/Backups.h"
#include "store/Configuration.h"
#include "store/Drafts.h"

#include <QCoreApplication>
#include <QFile>
#include <QPushButton>
#include <QTextBrowser>
#include <QTextCursor>
#include <QVBoxLayout>

/// A library's resources are there only once they are asked for, outside of any namespace.
static void InitialiseGuide() {
    Q_INIT_RESOURCE(guide);
}

namespace tarn {

namespace {

constexpr const char* LicenceFile = ":/guide/licences.md"; ///< built in with the guide
constexpr int Width = 9000;                                ///< twips
constexpr int Height = 6600;

/// The program tells the application with which commit it was built.
QString ProgramAndVersion() {
    const QString full = QCoreApplication::applicationVersion();
    return QStringLiteral("tarn ") + (full.isEmpty() ? ToQt(Version) : full);
}

QString Licences() {
    InitialiseGuide();
    QFile file(QString::fromLatin1(LicenceFile));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

Places PlacesOf(const DataFolder& folder) {
    const std::string database = WithNativeSeparators(folder.DatabaseName);
    Places places{{Words("Database"), database},
                  {Words("Backups"), BackupFolder(database)},
                  {Words("Configuration file"), folder.Configuration.string()},
                  {Words("Settings"), FromQt(UserPreferencesFile())}};
    if (const auto drafts = UserStateDirectory()) {
        places.emplace_back(Words("Drafts"), drafts->string());
    }
    return places;
}

AboutWindow::AboutWindow(QWidget& program, const Places& places)
    : QDialog(&program) {
    NameControl(*this, Controls::aboutWindow, ToQt(Words("About")));
    setWindowTitle(ToQt(Words("ABOUT")));
    text_ = new QTextBrowser(this);
    NameControl(*text_, Controls::aboutText, ToQt(Words("About")));
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text_->setOpenLinks(false);
    Fill(places);
    auto* close = NewButton(this, Controls::closeAbout, Words("&CLOSE"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* rows = new QVBoxLayout(this);
    SetSpacing(*rows, Metrics::Spacing);
    rows->addWidget(text_, 1);
    rows->addWidget(close, 0, Qt::AlignRight);
    setTabOrder(text_, close);
    resize(QSize(Pixels(Width), Pixels(Height)).boundedTo(program.size()));
}

void AboutWindow::Fill(const Places& places) {
    QTextCursor cursor(text_->document());
    cursor.insertText(ProgramAndVersion());
    for (const auto& [name, path] : places) {
        cursor.insertBlock();
        cursor.insertText(ToQt(Words("%1: %2", name, path)));
    }
    cursor.insertBlock();
    cursor.insertBlock();
    cursor.insertMarkdown(Licences());
    text_->moveCursor(QTextCursor::Start);
}

} // namespace tarn
