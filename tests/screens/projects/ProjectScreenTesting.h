#pragma once

// The project selection over a database file, driven as a user does.

#include "screens/ControlNames.h"
#include "screens/Display.h"
#include "screens/ScreenTesting.h"
#include "screens/projects/ProjectScreen.h"
#include "store/TestDatabase.h"

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

namespace tarn::testing {

/// The day of the session's Today is in March.
struct ProjectScreenTest : FormTest<ProjectScreen> {
    ProjectScreenTest() {
        file.AddDirectory("HOUSES");
        file.AddDirectory("SHOPS");
        file.AddProject("MARCH", "ANNEX", 1, 2);
        file.AddProject("MARCH", "BARN", 2, 1);
        file.AddProject("MAY", "CABIN", 3);
        file.AddProject("HOUSES", "VILLA", 4, 3);
        file.AddProject("HOUSES", "TOWER", 5);
        store = file.Open(ShortWait);
    }

    /// Load the screen and show it.
    void Load() {
        form = std::make_unique<ProjectScreen>(session);
        ShowOnDisplay(*form);
    }
    /// Load the screen and open the selection panel.
    void Open() {
        Load();
        Click(Button(Controls::selectProject));
        ASSERT_TRUE(Control(Controls::selectionPanel).isVisible());
    }

    QListWidget& Months() const { return Control<QListWidget>(Controls::months); }
    QListWidget& Directories() const { return Control<QListWidget>(Controls::directories); }
    QListWidget& Projects() const { return Control<QListWidget>(Controls::projects); }
    QLineEdit& Box() const { return Control<QLineEdit>(Controls::projectBox); }
    std::string BoxText() const { return FromQt(Box().text()); }
    std::string Label(const char* name) const { return FromQt(Control<QLabel>(name).text()); }

    static Lines Entries(const QListWidget& list) {
        Lines entries;
        for (int row = 0; row < list.count(); ++row) {
            entries.push_back(FromQt(list.item(row)->text()));
        }
        return entries;
    }
    /// The entry selected; "(none)" without one.
    static std::string Selected(const QListWidget& list) {
        const auto items = list.selectedItems();
        return items.isEmpty() ? "(none)" : FromQt(items.first()->text());
    }
    static QPoint PlaceOf(QListWidget& list, const std::string& entry) {
        const auto items = list.findItems(ToQt(entry), Qt::MatchExactly);
        if (items.isEmpty()) {
            throw std::runtime_error("there is no entry " + entry);
        }
        list.scrollToItem(items.first());
        return list.visualItemRect(items.first()).center();
    }
    static void ClickEntry(QListWidget& list, const std::string& entry,
                           Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        EXPECT_TRUE(list.isVisible());
        const QPoint place = PlaceOf(list, entry);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, place);
    }
    static void DoubleClickEntry(QListWidget& list, const std::string& entry) {
        const QPoint place = PlaceOf(list, entry);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    }
    void DeleteEntry(QListWidget& list, const std::string& entry, bool yes = true) {
        ClickEntry(list, entry);
        boxes.YesNo.push_back(yes);
        QTest::keyClick(&list, Qt::Key_Delete);
    }
    /// Type a name as a new project's.
    void TypeNew(const std::string& name) {
        Click(Button(Controls::newProject));
        Type(Box(), name);
    }
    /// Every row of the three tables, to see that nothing changed.
    Lines Stored() const {
        Lines rows = file.Rows("SELECT * FROM DirTab");
        for (const char* query :
             {"SELECT Dir, ProjName FROM ProjTab", "SELECT TabIndex, ProjName FROM MainTab",
              "SELECT TabIndex, ObjNum FROM InputData"}) {
            const Lines more = file.Rows(query);
            rows.insert(rows.end(), more.begin(), more.end());
        }
        return rows;
    }

    TestDatabase file;
};

} // namespace tarn::testing
