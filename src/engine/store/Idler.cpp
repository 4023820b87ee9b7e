#include "engine/store/Idler.h"

#include <utility>

namespace engine {

namespace {

thread_local Idler present = nullptr;
thread_local bool givenUp = false;

} // namespace

void giveUp() noexcept {
    givenUp = true;
}

void setIdler(Idler idler) {
    present = idler;
}

bool hasIdler() {
    return present != nullptr;
}

bool idle() {
    if (present != nullptr) {
        present();
    }
    return !std::exchange(givenUp, false);
}

} // namespace engine
