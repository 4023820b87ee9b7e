#pragma once

#include "ado/Error.h"

#include <string>

namespace ado::odbc {

// Servers that let a login wait in vain. What the program does in one event may connect several times: it waits once,
// and the next logins there fail at once with the same error, until the event loop waits for something new. Where no
// loop runs nothing is remembered.

void rememberSilent(const std::string& server, const Error& error);
/// Throws the error of a server that is remembered.
void refuseSilent(const std::string& server);

} // namespace ado::odbc
