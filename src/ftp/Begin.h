// How a session begins: by its script, or by asking who logs in.
#pragma once

#include "ftp/Arguments.h"

class Client;
class Screen;

/// Works off the script that was named. Without one asks for user and password; without a server does
/// nothing.
void Begin(Client& client, Screen& screen, const Arguments& arguments);
