// The command of the spell check.
#pragma once

class Frame;
class SpellChecker;

/// Fills mnuSpellCheck. The run belongs to the checker.
void FillSpellCommands(Frame& frame, SpellChecker& checker);
