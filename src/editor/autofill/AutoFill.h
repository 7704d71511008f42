// Offers the attributes of the tag at the caret, and writes the one that is taken.
#pragma once

#include "editor/autofill/AutoFillTables.h"
#include "editor/autofill/TrimmedWord.h"

#include <QObject>
#include <QString>

class AutoFillList;
class Document;
class Frame;
class frmDropDown;
class QTimer;

/// One for each document. The list itself is one for the whole program, and so is AutoFillList.
class AutoFill : public QObject {
    Q_OBJECT

  public:
    /// How long a pause after the blank brings the list up, in milliseconds.
    static constexpr int Delay = 1150;

    /// Timer1 becomes the one-shot timer of the pause.
    AutoFill(Frame& frame, Document& document, QTimer& Timer1, QObject* parent);

    /// Looks for the tag that the caret stands in, at most 150 characters back, and opens its list. typed is
    /// the character that is about to be typed.
    void WhatChar(const QString& typed);
    /// Opens the list of the tag whose "<" stands at position, 1-based; position is raised by 1. A tag
    /// without a list opens nothing.
    void OpenFunc(const QString& typed, int& position);
    /// Makes ready for a list: it comes up when the pause is over. The argument has no effect.
    void OpenDD(bool quoted);
    /// Opens the list of values of the attribute just written, if it has one.
    void DoQuote();
    /// What TakeRow wrote: something with a quote at its end leaves the caret before that quote.
    enum class Taken { Nothing, Word, InQuotes };
    /// Writes the selected row in place of the typed word.
    Taken TakeRow();

    /// Lets the list follow the caret and the typed word, after each change of the text.
    void FollowChange();
    /// A key that yields a character is pressed, Esc among them: the pending list doesn't come up any more.
    void StopTimer();
    /// Takes the list away, if it is loaded.
    void UnloadList();
    /// The loaded list, shown or hidden, or null.
    frmDropDown* List() const;

    const TrimmedWord& TypedWord() const { return TypedWord_; }
    /// The 1-based position from which the typed word counts.
    int WordStart() const { return WordStart_; }
    /// Whether the open list offers values, not attribute names.
    bool ValueList() const { return ValueList_; }
    void ClearValueList() { ValueList_ = false; }

  private:
    void Timer1_Timer();
    void Fill(const AutoFillRows& rows, const QString& called);
    void SelectMatchingRow();
    /// Assigns what the selected key writes to the selected text and returns its last character; null if it
    /// wrote nothing.
    QChar WriteKey(const QString& key);

    Frame& frame_;
    AutoFillList& shared_;
    Document& document_;
    QTimer& Timer1_;
    TrimmedWord TypedWord_;
    int WordStart_ = 0;
    bool ValueList_ = false;
};
