// The main frame as the program's start and its end see it: its parts, beside what every frame has.
#pragma once

#include "editor/frame/Frame.h"

class DocumentTabs;
class SpellChecker;
class StatusBar;
class UserButtons;

class MainFrame : public Frame {
  public:
    virtual DocumentTabs& TabStrip2() = 0;
    /// The strip of user buttons.
    virtual UserButtons& Picture2() = 0;
    /// The mode strip.
    virtual QWidget& Picture4() = 0;
    virtual StatusBar& Panels() = 0;
    virtual SpellChecker& VSSpell1() = 0;
    /// Whether the frame hears of the application becoming active, and of files dropped on it.
    virtual void SetHooks(bool activation, bool drops) = 0;
};
