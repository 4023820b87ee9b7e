#pragma once

#include <cstddef>
#include <memory>

namespace ado {

/// A piece of memory. One of the usual size that is given back is kept, within a limit, for the next who asks: the
/// system's fresh pages cost more than filling them. Safe in several threads.
class Block {
public:
    static constexpr std::size_t kUsualSize = 32'768; ///< bytes

    /// Of the usual size, or of `least` bytes where that is more; the contents are whatever was there.
    explicit Block(std::size_t least = kUsualSize);
    ~Block();
    Block(Block&&) noexcept = default;
    Block& operator=(Block&&) = delete;

    std::byte* data() const { return data_.get(); }
    std::size_t size() const { return size_; }

private:
    std::size_t size_;
    std::unique_ptr<std::byte[]> data_; ///< none in one that was moved from
};

} // namespace ado
