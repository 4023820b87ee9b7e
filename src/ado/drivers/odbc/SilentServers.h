#pragma once

#include "ado/Error.h"

#include <string>

namespace ado::odbc {

/// It was there, or seemed to be, and didn't say a word for as long as it is waited for.
bool isSilence(const Error& error);

/// What the program tells of a server that can't be reached: the words of the drivers differ, and are the context.
Error outOfReach(const Error& error);

// Servers that let a login or a statement wait in vain. What the program does in one event may connect several times:
// it waits once, and the next logins there fail at once, until the event loop waits for something new. Where no loop
// runs nothing is remembered.

void rememberSilent(const std::string& server, const Error& error);
/// Throws `outOfReach` of a server that is remembered.
void refuseSilent(const std::string& server);

} // namespace ado::odbc
