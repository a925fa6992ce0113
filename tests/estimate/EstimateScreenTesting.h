#pragma once

// What every test of the carpet estimate screen needs.

#include "engine/MultiEstimate.h"
#include "estimate/CutList.h"
#include "estimate/ESCarpForm.h"
#include "estimate/EstimateTesting.h"
#include "screens/ScreenTesting.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace tarn::testing {

/// An estimate screen on a project of some rooms.
struct EstimateScreenTest : ScreenTest {
    EstimateScreenTest() { state.CurProjName = "MAPLE STREET 9"; }

    void Add(const Room& room) {
        const Integer row = state.ObjNum;
        state.RoomWidth[row] = static_cast<Integer>(room.Width);
        state.RoomLength[row] = static_cast<Integer>(room.Length);
        state.RoomCarpet[row] = room.Carpet;
        state.RoomBase[row] = room.Base;
        state.ObjNum = static_cast<Integer>(row + 1);
    }

    void Open(std::initializer_list<Room> rooms, bool fromMenu = true) {
        for (const Room& room : rooms) {
            Add(room);
        }
        form = std::make_unique<ESCarpForm>(session, fromMenu);
        ShowOnDisplay(*form);
    }

    template <class W = QWidget>
    W& Control(const char* name) {
        return Find<W>(*form, name);
    }
    QRadioButton& Option(const char* name) { return Control<QRadioButton>(name); }
    QPushButton& Button(const char* name) { return Control<QPushButton>(name); }
    QLineEdit& Box(const char* name) { return Control<QLineEdit>(name); }
    QWidget& Panel() { return Control("Frame7"); }
    PictureBox& Picture1() {
        return static_cast<PictureBox&>(Control<QAbstractScrollArea>("Picture1"));
    }
    QWidget& Paper() { return *Picture1().viewport(); }

    void PressOk() { Click(Button("Command1(0)")); }

    /// Do what the options screen does for the pieces in hand: search, and say how it ended.
    void Search(Integer estOption = 0) {
        ASSERT_NE(screens.Client, nullptr);
        state.EstOption = estOption;
        SearchObserver nobody;
        ASSERT_EQ(MultiEstimate(state, engine, nobody), SearchOutcome::Done);
        screens.Client->LayoutReady();
    }

    /// Everything written on the picture, in its order.
    std::vector<std::string> Written() {
        std::vector<std::string> texts;
        for (const DrawingStep& step : Picture1().Drawing().Steps()) {
            if (step.What == DrawingStep::Kind::Text) {
                texts.push_back(step.Text);
            }
        }
        return texts;
    }
    int TimesWritten(const std::string& text) {
        const std::vector<std::string> texts = Written();
        return static_cast<int>(std::count(texts.begin(), texts.end(), text));
    }
    /// The first step that writes `text`.
    DrawingStep StepOf(const std::string& text) {
        for (const DrawingStep& step : Picture1().Drawing().Steps()) {
            if (step.Text == text) {
                return step;
            }
        }
        ADD_FAILURE() << text << " is not written";
        return {};
    }
    void ExpectNothingEstimated() {
        EXPECT_EQ(state.ECutCount, 0);
        EXPECT_EQ(engine.PieceCount, 0);
        EXPECT_EQ(engine.PosCount, 0);
        EXPECT_EQ(engine.BestLen, 0);
        EXPECT_EQ(engine.BestMode, 0);
        EXPECT_EQ(engine.ResultLen, 0);
        EXPECT_TRUE(Picture1().Drawing().Steps().empty());
    }

    std::unique_ptr<ESCarpForm> form;
};

} // namespace tarn::testing
