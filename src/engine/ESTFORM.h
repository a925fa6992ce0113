#pragma once

#include "app/TitledScreen.h"
#include "engine/EstOptions.h"
#include "engine/FillsClient.h"

#include <array>

class QLabel;
class QProgressBar;
class QPushButton;
class QRadioButton;

namespace tarn {

class SearchProgress;

/// The estimation options: the minimum cut length and the most pieces per fill, and the search that
/// they bound. Opened above the estimate, which gets the layout, or word that there is none; either
/// way the screen then returns to it.
class ESTFORM : public TitledScreen {
  public:
    ESTFORM(Session& session, FillsClient& client);

  protected:
    void OnCloseByFrame() override;
    QWidget* FirstFocus() override;

  private:
    void BuildMinCuts(QWidget& frame);
    void BuildPieces(QWidget& frame);
    void BuildFrame();
    void Continue();
    void ReturnWithoutLayout();
    void EnableChoices(bool enabled);
    Integer ChosenOption() const;

    FillsClient& client_;
    std::array<QRadioButton*, MinCuts> minCuts_{};          ///< Option2
    std::array<QRadioButton*, MostPiecesPerFill> pieces_{}; ///< Option1
    QPushButton* continue_ = nullptr;                       ///< Command1
    QProgressBar* bar_ = nullptr;                           ///< ProgressBar1
    QLabel* percentage_ = nullptr;                          ///< Label6
    SearchProgress* search_ = nullptr;                      ///< while a search runs
};

} // namespace tarn
