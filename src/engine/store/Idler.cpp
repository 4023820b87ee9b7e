#include "engine/store/Idler.h"

namespace engine {

namespace {

thread_local Idler present = nullptr;

} // namespace

void setIdler(Idler idler) {
    present = idler;
}

bool hasIdler() {
    return present != nullptr;
}

void idle() {
    if (present != nullptr) {
        present();
    }
}

} // namespace engine
