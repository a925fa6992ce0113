#pragma once

// The menu over a database file.

#include "screens/ControlNames.h"
#include "screens/ScreenTesting.h"
#include "screens/menu/MenuScreen.h"
#include "store/TestDatabase.h"

namespace tarn::testing {

/// The menu of P, which has sheet 5 and three rooms.
struct MenuTest : FormTest<MenuScreen> {
    MenuTest() {
        file.AddProject("MARCH", "P", 5, 3);
        store = file.Open(ShortWait);
        open.Now.Name = "P";
    }
    void Load(MenuEntry entry = MenuEntry::ExistingProject) {
        form = std::make_unique<MenuScreen>(session, entry);
        ShowOnDisplay(*form);
        QCoreApplication::processEvents(); // the message of the load
    }
    bool Shows(const char* name) const { return Control(name).isVisible(); }
    QRect PlaceOf(const char* name) const {
        const QWidget& widget = Control(name);
        return {widget.mapTo(form.get(), QPoint(0, 0)), widget.size()};
    }

    TestDatabase file;
};

} // namespace tarn::testing
