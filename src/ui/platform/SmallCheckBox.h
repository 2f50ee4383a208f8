#pragma once

#include <QCheckBox>

namespace orvinel {

// A check box without a text that fills its rectangle: 13 x 14 pixels.
class SmallCheckBox : public QCheckBox {
    Q_OBJECT
  public:
    SmallCheckBox(const QString& name, QWidget* parent);

    // 0 clear, 1 checked, anything else: neither (shown grey). Emits changed() when it differs from the
    // present one.
    void setValue(int value);
    int value() const;

  signals:
    void changed();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void nextCheckState() override;

  private:
    int value_ = 1;
};

} // namespace orvinel
