// F6: the keyboard's way from the text through the strips of the frame and back.
#pragma once

#include <functional>
#include <QObject>
#include <vector>

class QWidget;

/// F6 goes to the next station, Shift+F6 to the one before, around the ends. One that isn't shown, or has
/// nothing to give the focus to, is passed over. From where no station has the focus, F6 goes to the second:
/// the first one is the text.
class StripRound final : public QObject {
    Q_OBJECT

  public:
    struct Station {
        QWidget* place;
        std::function<void()> takeFocus;
        /// What belongs to the place without lying in it.
        std::function<bool(const QWidget&)> holds = nullptr;
    };

    StripRound(QWidget& window, std::vector<Station> stations);

  private:
    void Go(int step);
    bool HasFocus(const Station& station) const;

    QWidget& window_;
    std::vector<Station> stations_;
};
