// Carries a precompiled header, and nothing else.
