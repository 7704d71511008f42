#include "tools/printing/PrintErrors.h"

#include "platform/desktop/ProgramTitle.h"

// An answer that is no number counts as no copies, and comes to no box; the first row is here for whoever
// asks for another number.
PrintErrorBox BoxOf(PrintError error) {
    const QString title = QStringLiteral("Print");
    switch (error) {
    case PrintError::NotANumber:
        return {QStringLiteral("Please enter a number - letters will not work."), title, MsgIcon::Critical};
    case PrintError::NothingThere:
        return {QStringLiteral("There is nothing to print."), title, MsgIcon::Critical};
    default:
        return {QStringLiteral("An error ocurred - ") + QString::number(static_cast<int>(error)),
                ProgramTitle, MsgIcon::None};
    }
}
