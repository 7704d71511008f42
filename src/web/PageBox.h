// The box in which a page speaks to the user.
#pragma once

#include <optional>
#include <QDialog>

class QCheckBox;
class QLineEdit;

/// It can't be taken for a box of the program: its title and first line say that a page speaks, and what the
/// page says stands framed below, as plain text.
class PageBox final : public QDialog {
    Q_OBJECT

  public:
    struct Request {
        QString speaker = {}; ///< the page's file or host
        QString message = {};
        bool question = false;                ///< with Cancel beside OK
        std::optional<QString> proposal = {}; ///< for a question that a line of text answers
        bool offersSilence = false;
    };

    PageBox(const Request& request, QWidget* parent);

    /// Whether the user wants to hear no more of this page.
    bool WantsSilence() const;
    /// The line of text; empty where none was asked for.
    QString Line() const;

  private:
    QLineEdit* line_ = nullptr;
    QCheckBox* silence_ = nullptr;
};
