// A titled frame around one field, whose title is the field's label.
#pragma once

#include <QGroupBox>

/// The title's mnemonic goes to the field, the first edit or combo box in the frame, even where option
/// buttons stand beside it: a plain group box would go to the button that is on.
class FieldFrame : public QGroupBox {
    Q_OBJECT

  public:
    using QGroupBox::QGroupBox;

    /// The field that the title names, or null.
    QWidget* Field() const;

  protected:
    bool event(QEvent* event) override;
};
