#pragma once

#include "ado/Error.h"

#include <string>

namespace ado::odbc {

/// Whether the error is a time-out: the server didn't answer in time.
bool isSilence(const Error& error);

/// The error for a server that can't be reached. Its text is the same for all drivers; theirs become its context.
Error outOfReach(const Error& error);

// Servers that didn't answer a login or a statement in time. One event of the program may connect several times. It
// waits once only: further logins to that server fail at once, until the event loop waits for the next event. Without a
// running event loop nothing is remembered.

void rememberSilent(const std::string& server, const Error& error);
/// Throws the error of `outOfReach` where the server is remembered.
void refuseSilent(const std::string& server);

// Servers that answered a moment ago, in the same event: whether they live needn't be asked again. A server that was
// found lost or silent since isn't one of them.

void rememberAnswer(const std::string& server);
void forgetAnswer(const std::string& server);
bool hasJustAnswered(const std::string& server);

} // namespace ado::odbc
