#pragma once

#include "progress/OpenedTreasures.h"
#include "ui/dialogs/Dialog.h"

#include <array>
#include <functional>

namespace orvinel {

class DateBox;

// Notes the day on which a character opened a chest. The inputs are set before it is shown.
class frmMarkTreasureAsOpened : public Dialog {
    Q_OBJECT
  public:
    // `refilter` runs after a save, before the dialog closes.
    frmMarkTreasureAsOpened(DialogContext context, std::function<void()> refilter, QWidget* owner);

    // An index of Treasures.
    void SetTreasureNumber(int treasure) { treasure_ = treasure; }

  protected:
    void load() override;

  private:
    void addDate();
    void LayoutDateBoxes();
    void UpdateSaveCaption();
    void save();
    DateFields fields() const;

    std::function<void()> refilter_;
    int treasure_ = 0;
    DateOrder order_;
    ListBox* lstCharacters_;
    std::array<DateBox*, 3> txtDate_{};
    std::array<Label*, 2> lblSeparatore_{};
    QPushButton* cmdSave_;
};

} // namespace orvinel
