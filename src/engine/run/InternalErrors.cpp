#include "engine/run/InternalErrors.h"

#include "engine/errors/RunErrors.h"
#include "engine/errors/StoreErrors.h"
#include "engine/store/Sqlite.h"
#include "engine/store/StorageErrors.h"

#include <atomic>
#include <cstdio>
#include <filesystem>
#include <new>

namespace engine {

namespace {

std::atomic<InternalErrorListener> currentListener{nullptr};

[[noreturn]] void internal(const char* what) {
    if (const InternalErrorListener listener = currentListener.load()) {
        listener(what);
    } else {
        std::fprintf(stderr, "internal error: %s\n", what);
    }
    throw errors::internal();
}

} // namespace

InternalErrorListener onInternalError(InternalErrorListener listener) {
    return currentListener.exchange(listener);
}

void rethrowAsAnswer() {
    try {
        throw;
    } catch (const Error&) {
        throw;
    } catch (const sqlite::Failure& failure) {
        if (const auto answer = storageError(failure, "")) {
            throw Error(*answer);
        }
        internal(failure.what());
    } catch (const std::filesystem::filesystem_error& error) {
        throw errors::storageBroken(error.what());
    } catch (const std::bad_alloc&) {
        throw errors::outOfMemory();
    } catch (const std::exception& bug) {
        internal(bug.what());
    }
}

} // namespace engine
