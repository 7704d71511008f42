// The command that turns a server-side map file into a client-side map.
#pragma once

class Frame;

/// Lets the user pick a file and give a name, and inserts the map at the selection. A file that can't be read
/// ends it silently. With no document open it returns at once.
void mnuInsertImageMap_Click(Frame& frame);
