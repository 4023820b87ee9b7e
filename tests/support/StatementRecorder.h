#pragma once

#include <string>
#include <vector>

namespace support {

/// Records the text of every statement that the data layer sends while this object lives.
class StatementRecorder {
public:
    StatementRecorder();
    StatementRecorder(const StatementRecorder&) = delete;
    StatementRecorder& operator=(const StatementRecorder&) = delete;
    ~StatementRecorder();

    const std::vector<std::string>& texts() const { return texts_; }
    void clear() { texts_.clear(); }
    /// How often this text was sent.
    long count(const std::string& text) const;
    /// The texts that contain `part`, in their order.
    std::vector<std::string> holding(const std::string& part) const;
    /// Whether all of these were sent in this order; others may be between them.
    bool sentInOrder(const std::vector<std::string>& texts) const;

private:
    std::vector<std::string> texts_;
};

} // namespace support
