// What a text control tells assistive technology of itself.
#pragma once

#include "platform/text/ColorNumber.h"

#include <QFont>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>

/// Positions are characters from 0, places are pixels of the viewport. No call costs more than the text that
/// it returns.
class AccessibleText {
  public:
    virtual ~AccessibleText() = default;

    virtual int TextLength() const = 0;
    virtual QString TextRange(int start, int length) const = 0;
    /// Where the line of a position starts, and where the next one does (the text's end for the last).
    virtual int LineStart(int position) const = 0;
    virtual int NextLineStart(int position) const = 0;

    virtual int SelStart() const = 0;
    virtual void SetSelStart(int position) = 0;
    virtual int SelLength() const = 0;
    virtual void SetSelLength(int length) = 0;
    /// The caret: the end of the selection that keys move.
    virtual int CaretPosition() const = 0;

    /// The colour of a character, or -1 outside the text.
    virtual ColorNumber ColorAt(int position) const = 0;
    virtual ColorNumber BackColor() const = 0;
    virtual QFont Font() const = 0;

    /// A character's place and the character nearest to a place.
    virtual QRect CharacterRect(int position) const = 0;
    virtual int PositionAt(QPoint pixel) const = 0;
    /// Brings a stretch of the text into view; the caret stays.
    virtual void ScrollTo(int start, int end) = 0;

    virtual bool Enabled() const = 0;
    /// Replaces the selection as pasting does.
    virtual void InsertForeign(const QString& text) = 0;
};

// Told apart by the metaobject: an object of a library that was built without run-time type information must
// not be cast.
Q_DECLARE_INTERFACE(AccessibleText, "tarnwick.AccessibleText")
