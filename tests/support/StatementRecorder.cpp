#include "support/StatementRecorder.h"

#include "ado/Connection.h"

#include <algorithm>
#include <iterator>

namespace support {

StatementRecorder::StatementRecorder() {
    ado::setStatementRecorder([this](const std::string& text) { texts_.push_back(text); });
}

StatementRecorder::~StatementRecorder() {
    ado::setStatementRecorder({});
}

long StatementRecorder::count(const std::string& text) const {
    return std::count(texts_.begin(), texts_.end(), text);
}

std::vector<std::string> StatementRecorder::holding(const std::string& part) const {
    std::vector<std::string> found;
    std::copy_if(texts_.begin(), texts_.end(), std::back_inserter(found),
                 [&](const std::string& text) { return text.find(part) != std::string::npos; });
    return found;
}

bool StatementRecorder::sentInOrder(const std::vector<std::string>& texts) const {
    auto next = texts.begin();
    for (const std::string& sent : texts_) {
        if (next != texts.end() && sent == *next) {
            ++next;
        }
    }
    return next == texts.end();
}

} // namespace support
