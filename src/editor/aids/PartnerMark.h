// Marks the tag at the caret and its partner.
#pragma once

#include "editor/aids/TagPartner.h"

#include <optional>
#include <QObject>
#include <QTimer>

class RichTextBox;

/// A key costs nothing but the start of a timer: the search begins in a pause, goes on in turns of the event
/// loop, and is given up when the caret moves on. The marks stay while the caret is in the marked tag.
class PartnerMark final : public QObject {
    Q_OBJECT

  public:
    /// How long a caret stands still before its tag's partner is looked for, in milliseconds.
    static constexpr int Pause = 150;

    PartnerMark(RichTextBox& text, QObject* parent);

    /// Whether a search is due or under way.
    bool Busy() const { return pause_.isActive() || turns_.isActive(); }

  private:
    void CaretMoved();
    void Search();
    void Turn();
    void Show(const std::optional<TagPartners>& found);
    bool CaretIsMarked() const;

    RichTextBox& text_;
    QTimer pause_;
    QTimer turns_;
    std::optional<PartnerSearch> search_;
    bool marked_ = false; ///< marks may be in view
};
