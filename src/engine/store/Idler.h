#pragma once

namespace engine {

/// What a thread does again and again, every few thousand steps of the storage, while the storage works for it or waits
/// for another writer. It decides itself how often that is too often, and must not use a session of this thread.
using Idler = void (*)() noexcept;

/// For an idler whose thread no longer wants what the storage does: the statement ends with error 3980.
void giveUp() noexcept;

/// Sets the one of the present thread. Without one, nullptr, nothing is called and nothing is spent on it.
void setIdler(Idler idler);
bool hasIdler();
/// Calls it where there is one. Whether the storage goes on.
bool idle();

} // namespace engine
