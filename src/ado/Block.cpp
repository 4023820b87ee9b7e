#include "ado/Block.h"

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

namespace ado {

namespace {

constexpr std::size_t kMostKept = 512; // 16 MiB

struct Kept {
    std::mutex mutex;
    std::vector<std::unique_ptr<std::byte[]>> blocks;
};

/// Never destroyed, since a recordset may live as long as the program.
Kept& kept() {
    static auto* const all = [] {
        auto* made = new Kept;
        made->blocks.reserve(kMostKept);
        return made;
    }();
    return *all;
}

std::unique_ptr<std::byte[]> taken() {
    const std::scoped_lock lock(kept().mutex);
    auto& blocks = kept().blocks;
    if (blocks.empty()) {
        return nullptr;
    }
    auto last = std::move(blocks.back());
    blocks.pop_back();
    return last;
}

} // namespace

Block::Block(std::size_t least) : size_(std::max(least, kUsualSize)) {
    if (size_ == kUsualSize) {
        data_ = taken();
    }
    if (!data_) {
        data_ = std::make_unique_for_overwrite<std::byte[]>(size_);
    }
}

Block::~Block() {
    if (!data_ || size_ != kUsualSize) {
        return;
    }
    const std::scoped_lock lock(kept().mutex);
    if (kept().blocks.size() < kMostKept) {
        kept().blocks.push_back(std::move(data_));
    }
}

} // namespace ado
