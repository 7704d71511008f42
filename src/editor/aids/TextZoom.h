// How large the text of all documents is drawn.
#pragma once

#include <QObject>

class Frame;
class Settings;

/// One a frame, reached as frame.State<TextZoom>(). The level itself stands in the settings.
class TextZoom final : public QObject {
    Q_OBJECT

  public:
    /// In percent of the documents' font.
    static constexpr int Smallest = 50;
    static constexpr int Largest = 500;
    static constexpr int Normal = 100;

    /// The level that is so many steps larger, or smaller, than one that may lie between two steps.
    static int Beyond(int percent, int steps);
    /// The level as it is stored; Normal where that is no number above 0.
    static int Stored(const Settings& store);

    /// Stores a level, tells all documents of it, and the user in panel 3.
    void Set(Frame& frame, int percent);

  Q_SIGNALS:
    void Changed(int percent);
};
