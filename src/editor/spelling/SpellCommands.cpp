#include "editor/spelling/SpellCommands.h"

#include "editor/frame/Commands.h"
#include "editor/frame/Frame.h"
#include "editor/spelling/SpellChecker.h"
#include "editor/spelling/SpellRun.h"

void FillSpellCommands(Frame& frame, SpellChecker& checker) {
    auto* run = new SpellRun(frame, checker, &checker);
    frame.Commands().Set(QStringLiteral("mnuSpellCheck"), [run] { run->SpellCheckDocument(); });
}
