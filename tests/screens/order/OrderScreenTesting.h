#pragma once

// What every test of the order screen needs.

#include "screens/ControlNames.h"
#include "screens/Controls.h"
#include "screens/ScreenTesting.h"
#include "screens/order/OrderScreen.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTabBar>
#include <QTableWidget>

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace tarn::testing {

/// An order screen on a project of some rooms. What is asked for takes no time unless a test says
/// otherwise: each row then has its first layout.
struct OrderScreenTest : FormTest<OrderScreen> {
    OrderScreenTest() { open.Now.Name = open.Saved.Name = "MAPLE STREET 9"; }

    void Add(Integer width, Integer length, Byte covering = 0) {
        open.Now.Rooms.push_back({width, length, covering, 0, "", ""});
        open.Saved.Rooms = open.Now.Rooms;
    }
    /// A request that is kept for a carpet, as stored.
    OrderRequest& Keep(Byte carpet, const std::vector<RollChoice>& rolls) {
        OrderRequest request = DefaultOrderRequest(open.Shown);
        request.Rolls = rolls;
        request.PatternDrift = 0;
        request.Seconds = 0;
        open.Saved.Orders[carpet] = request;
        return open.Saved.Orders[carpet];
    }
    static RollChoice Roll(Double width, const char* typed) { return {width, "", typed, {}}; }
    /// A job of which the shortest layout is not known to be it, since the match of the pattern
    /// takes more than any bound knows: a search of it goes on until it is stopped.
    void KeepEndless() {
        for (Integer room = 0; room < 12; ++room) {
            Add(static_cast<Integer>(150 + room * 37 % 101),
                static_cast<Integer>(180 + room * 53 % 127));
        }
        OrderRequest& request = Keep(0, {Roll(144, "12ft")});
        request.Pattern = {18, 24, false};
        request.TrimAlong = 3;
        request.TrimAcross = 1;
        request.Seconds = 3600;
    }

    void Open(std::optional<Byte> carpet = std::nullopt, int width = 1366, int height = 768) {
        open.Now.Orders = open.Saved.Orders;
        form = std::make_unique<OrderScreen>(session, carpet);
        ShowOnDisplay(*form, width, height);
    }
    void WaitUntil(const std::function<bool()>& holds) {
        constexpr int Patience = 20000;
        if (!QTest::qWaitFor(holds, Patience)) {
            throw std::runtime_error("waited in vain; the state is: " + State());
        }
    }
    /// Wait until the comparison says so.
    void WaitFor(const std::string& expected) {
        WaitUntil([&] { return State() == expected; });
    }
    void OpenCompared(std::optional<Byte> carpet = std::nullopt) {
        Open(carpet);
        WaitFor("Compared.");
    }
    void OpenEndless() {
        KeepEndless();
        Open();
        WaitUntil([this] { return Table().rowCount() == 1; });
    }

    QLineEdit& Field(const char* name) { return Control<QLineEdit>(name); }
    QTableWidget& Table() { return Control<QTableWidget>(Controls::comparison); }
    QTableWidget& Rolls() { return Control<QTableWidget>(Controls::orderRolls); }
    std::string LabelText(const char* name) {
        const auto& label = Control<QLabel>(name);
        return label.isHidden() ? std::string() : FromQt(label.text());
    }
    std::string State() { return LabelText(Controls::comparisonState); }
    std::string Refusal() { return LabelText(Controls::orderRefusal); }
    static std::string Cell(const QTableWidget& table, int row, int column) {
        return FromQt(table.item(row, column)->text());
    }
    /// A column of the comparison, from above.
    std::vector<std::string> Column(int column) {
        std::vector<std::string> texts;
        texts.reserve(static_cast<std::size_t>(Table().rowCount()));
        for (int row = 0; row < Table().rowCount(); ++row) {
            texts.push_back(Cell(Table(), row, column));
        }
        return texts;
    }
    std::vector<std::string> ListedLines() {
        const auto& list = Control<QListView>(Controls::rollList);
        std::vector<std::string> lines;
        for (int row = 0; row < list.model()->rowCount(); ++row) {
            lines.push_back(FromQt(list.model()->index(row, 0).data().toString()));
        }
        return lines;
    }
    /// Replace what stands in a field, as one does by keys.
    void Fill(const char* name, const std::string& text) {
        QLineEdit& field = Field(name);
        Focus(field);
        field.selectAll();
        if (text.empty()) {
            QTest::keyClick(&field, Qt::Key_Delete);
        }
        Type(field, text);
    }
    /// Begin to type into a cell of the rolls. Answers the field that the first key opens.
    QWidget& TypeRoll(int row, int column, const std::string& text) {
        Focus(Rolls());
        Rolls().setCurrentCell(row, column);
        QTest::keyClicks(&Rolls(), ToQt(text.substr(0, 1)));
        QWidget* field = form->focusWidget();
        if (qobject_cast<QLineEdit*>(field) == nullptr) {
            throw std::runtime_error("typing opens no field");
        }
        QTest::keyClicks(field, ToQt(text.substr(1)));
        return *field;
    }
    /// Type into a cell of the rolls and end it with Enter.
    void FillRoll(int row, int column, const std::string& text) {
        QTest::keyClick(&TypeRoll(row, column, text), Qt::Key_Return);
        QCoreApplication::processEvents(); // the field is left by the event loop
    }
};

inline constexpr const char* OutOfDateText =
    "OUT OF DATE: the choices have changed. Press COMPARE.";

} // namespace tarn::testing
