// The parts of the text control put together without it.
#pragma once

#include "platform/text/TextColors.h"
#include "platform/text/TextEditing.h"

#include <gtest/gtest.h>
#include <Qsci/qsciscintillabase.h>

class TextParts : public testing::Test {
  protected:
    using Control = QsciScintillaBase;

    TextParts() {
        buffer.SetUp();
        control.SendScintilla(Control::SCI_SETMODEVENTMASK,
                              long{Control::SC_MOD_BEFOREINSERT | Control::SC_MOD_BEFOREDELETE});
        editing.takeIncoming = [this] { colors.TakeIncoming(); };
        QObject::connect(&control, &Control::SCN_MODIFIED, &control,
                         [this](int position, int type, const char*, int length) {
                             colors.TakeIncoming();
                             Tell({position, position + length}, type);
                         });
    }

    /// Replaces all there is, in black.
    void Put(const QString& text) {
        const QByteArray bytes = text.toUtf8();
        editing.Replace(buffer.Whole(), bytes, StyleRuns(static_cast<int>(bytes.size()), 0));
    }

    QString Text() const { return buffer.Text(buffer.Whole()); }

    void Send(unsigned int message) {
        control.SendScintilla(message);
        colors.TakeIncoming();
    }

    QsciScintillaBase control;
    TextBuffer buffer{control};
    TextColors colors{control, buffer};
    TextEditing editing{control, buffer, colors};

  private:
    void Tell(ByteRange range, int type) {
        const auto cause = (type & Control::SC_PERFORMED_UNDO) != 0   ? TextColors::Cause::Undo
                           : (type & Control::SC_PERFORMED_REDO) != 0 ? TextColors::Cause::Redo
                                                                      : TextColors::Cause::Edit;
        if ((type & Control::SC_MOD_BEFOREINSERT) != 0)
            colors.BeforeInsertion(range, cause);
        else if ((type & Control::SC_MOD_BEFOREDELETE) != 0)
            colors.BeforeDeletion(range, cause);
    }
};
