#pragma once

// What the tests of the room entry screen share.

#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/ScreenTesting.h"
#include "screens/rooms/RoomScreen.h"

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace tarn::testing {

using Lines = std::vector<std::string>;

/// The seven fields that take a text, in the order of RoomEntryFrame::TextIndex.
inline constexpr std::array<const char*, 7> TextNames{
    Controls::roomWidthMajor,  Controls::roomWidthMinor, Controls::roomLengthMajor,
    Controls::roomLengthMinor, Controls::wallBase,       Controls::roomNumber,
    Controls::remark};

inline constexpr const char* WrongSize = "The Size of room is not correct. Data is not changed";

/// A project of rooms, and the screen on it.
struct RoomScreenTest : FormTest<RoomScreen> {
    RoomScreenTest() { open.Now.Name = "Mill house"; }

    /// Room i: 10 ft x 12 ft and i inches more each, covering and base i.
    static Room NumberedRoom(Integer i) {
        return {static_cast<Integer>(120 + i), static_cast<Integer>(144 + i),
                static_cast<Byte>(i % 12),     static_cast<Byte>(i % 9),
                "N" + std::to_string(i),       "remark " + std::to_string(i)};
    }
    void AddRooms(Integer count) {
        open.Now.Rooms.clear();
        open.Typed = {};
        for (Integer i = 0; i < count; ++i) {
            open.Now.Rooms.push_back(NumberedRoom(i));
        }
        open.Saved = open.Now;
    }
    RoomScreen& Open(int width = 800, int height = 600) {
        form = std::make_unique<RoomScreen>(session);
        ShowOnDisplay(*form, width, height);
        return *form;
    }

    QLineEdit& Text(int index) const {
        return Control<QLineEdit>(TextNames.at(static_cast<std::size_t>(index)));
    }
    QComboBox& Covering() const { return Control<QComboBox>(Controls::covering); }
    std::string Item() const { return FromQt(Control<QLabel>(Controls::itemNumber).text()); }
    /// The seven texts.
    Lines Texts() const {
        Lines texts;
        for (int i = 0; i < 7; ++i) {
            texts.push_back(FromQt(Text(i).text()));
        }
        return texts;
    }
    /// Go to a field and type at its end.
    void TypeInto(int index, const std::string& text) const {
        Focus(Text(index));
        Press(*form, Qt::Key_End);
        Type(Text(index), text);
    }
    void TypeSizes(const Lines& sizes) const {
        for (std::size_t i = 0; i < sizes.size(); ++i) {
            TypeInto(static_cast<int>(i), sizes[i]);
        }
    }
    /// Replace what stands in a field by a pasted text.
    void Paste(int index, const std::string& text) const {
        QApplication::clipboard()->setText(ToQt(text));
        Focus(Text(index));
        Press(*form, Qt::Key_A, Qt::ControlModifier);
        Press(*form, Qt::Key_V, Qt::ControlModifier);
    }
    void ClickOn(const char* name) const { Click(Control(name)); }
    bool HasFocus(const char* name) const {
        return QTest::qWaitFor([&] { return Control(name).hasFocus(); }, 1000);
    }
    /// Choose an item of the File menu with the keyboard.
    void ChooseFileItem(Qt::Key item) const {
        Press(*form, Qt::Key_F, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        if (QWidget* menu = QApplication::activePopupWidget()) {
            QTest::keyClick(menu, item);
        }
    }
};

} // namespace tarn::testing
