#pragma once

#include <QLoggingCategory>

#include <string>
#include <vector>

namespace support {

/// Collects what the program logs while this object lives.
class LogLines {
public:
    LogLines() : before_(qInstallMessageHandler(&LogLines::take)) { lines().clear(); }
    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;
    ~LogLines() {
        qInstallMessageHandler(before_);
        QLoggingCategory::setFilterRules({});
    }

    static std::vector<std::string>& lines() {
        static std::vector<std::string> all;
        return all;
    }

private:
    static void take(QtMsgType /*type*/, const QMessageLogContext& context, const QString& text) {
        lines().push_back(std::string(context.category) + ": " + text.toStdString());
    }
    QtMessageHandler before_;
};

} // namespace support
