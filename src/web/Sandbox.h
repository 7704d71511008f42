// The engine's sandbox, which keeps what a page does to its process from the rest of the machine.
#pragma once

/// Root can't have the sandbox, and the engine ends a program that asks for it there: for user id 0 it is
/// switched off. It stays on for everybody else. To be called before the engine starts.
void DoWithoutSandboxAsRoot(unsigned int userId);
