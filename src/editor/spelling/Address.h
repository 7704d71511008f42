// Addresses in running text: links, mail, paths and the names of files and machines.
#pragma once

#include <QStringView>

/// Whether a stretch without blanks is an address and no text: "http://x.org", "a@b.org", "www.x.org",
/// "/usr/bin", "~/.zshrc", "C:\site", "index.html". Punctuation around it does not count. A dot parts words
/// where a capital letter follows and there are small ones too: "end.Start" is text.
bool IsAddress(QStringView stretch);
