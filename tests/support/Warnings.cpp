#include "support/Warnings.h"

#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <utility>
#include <vector>

namespace support {

namespace {

std::vector<ExpectedWarning*>& expected() {
    static std::vector<ExpectedWarning*> list;
    return list;
}

void handle(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
    const std::string text = message.toStdString();
    if (type == QtDebugMsg || type == QtInfoMsg) {
        std::fprintf(stderr, "%s\n", text.c_str());
        return;
    }
    if (!ExpectedWarning::takes(text)) {
        ADD_FAILURE() << "Unexpected warning: " << text;
    }
}

} // namespace

void installWarningHandler() {
    qInstallMessageHandler(handle);
}

ExpectedWarning::ExpectedWarning(std::string part) : part_(std::move(part)) {
    expected().push_back(this);
}

ExpectedWarning::~ExpectedWarning() {
    std::erase(expected(), this);
    if (seen_ == 0) {
        ADD_FAILURE() << "A warning didn't come: " << part_;
    }
}

bool ExpectedWarning::takes(const std::string& text) {
    const auto taker = std::find_if(expected().begin(), expected().end(), [&](const ExpectedWarning* warning) {
        return text.find(warning->part_) != std::string::npos;
    });
    if (taker == expected().end()) {
        return false;
    }
    ++(*taker)->seen_;
    return true;
}

} // namespace support
