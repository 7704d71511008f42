// Finding a stored text once more, onwards or back from the caret.
#pragma once

class Frame;

/// Selects the next match of the text in FindAgainState, or says that there is none.
void FindAgain(Frame& frame);
