#pragma once

// What the tests of the room entry screen share.

#include "app/Controls.h"
#include "rooms/TarnForm.h"
#include "screens/ScreenTesting.h"

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace tarn::testing {

using Lines = std::vector<std::string>;

inline constexpr const char* NextButton = "Command1(0)";
inline constexpr const char* PreviousButton = "Command1(1)";
inline constexpr const char* DeleteButton = "Command1(2)";
inline constexpr const char* SaveButton = "Command1(3)";

inline constexpr const char* WrongSize = "The Size of room is not correct. Data is not changed";

/// A project of rooms, and the screen on it.
struct RoomScreen : ScreenTest {
    RoomScreen() { state.CurProjName = "Mill house"; }

    /// Room i: 10 ft x 12 ft and i inches more each, covering and base i.
    static RoomRecord Room(Integer i) {
        return {static_cast<Integer>(120 + i), static_cast<Integer>(144 + i),
                static_cast<Byte>(i % 12),     static_cast<Byte>(i % 9),
                "N" + std::to_string(i),       "remark " + std::to_string(i)};
    }
    void AddRooms(Integer count) {
        for (Integer i = 0; i < count; ++i) {
            PutRoom(state, i, Room(i));
        }
        state.ObjNum = count;
        project.StoredRooms = TakeRooms(state);
    }
    TarnForm& Open(int width = 800, int height = 600) {
        form = std::make_unique<TarnForm>(session);
        ShowOnDisplay(*form, width, height);
        return *form;
    }

    QLineEdit& Text(int index) const {
        return Find<QLineEdit>(*form, IndexedName("Text1", index).toLatin1().constData());
    }
    QComboBox& Covering() const { return Find<QComboBox>(*form, "Combo1"); }
    std::string Item() const { return FromQt(Find<QLabel>(*form, "Label1(11)").text()); }
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
    void ClickOn(const char* name) const { Click(Find(*form, name)); }
    bool HasFocus(const char* name) const {
        return QTest::qWaitFor([&] { return Find(*form, name).hasFocus(); }, 1000);
    }
    /// Choose an item of the File menu with the keyboard.
    void ChooseFileItem(Qt::Key item) const {
        Press(*form, Qt::Key_F, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activePopupWidget() != nullptr; }));
        if (QWidget* menu = QApplication::activePopupWidget()) {
            QTest::keyClick(menu, item);
        }
    }

    std::unique_ptr<TarnForm> form;
};

} // namespace tarn::testing
