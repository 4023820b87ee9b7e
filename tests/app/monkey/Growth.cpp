#include "app/monkey/Growth.h"

#include "app/monkey/Process.h"

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QPixmapCache>

#include <algorithm>
#include <array>
#include <atomic>

// The toolkit's own counters for tools: a table of functions that it calls for each object made and destroyed.
extern Q_CORE_EXPORT quintptr qtHookData[];
namespace monkey {

namespace {

constexpr int kObjectMade = 3;
constexpr int kObjectGone = 4;
std::atomic<long> objects = 0;

void made(QObject* /*object*/) {
    ++objects;
}

void gone(QObject* /*object*/) {
    --objects;
}

} // namespace

Growth::Growth() {
    qtHookData[kObjectMade] = reinterpret_cast<quintptr>(&made);
    qtHookData[kObjectGone] = reinterpret_cast<quintptr>(&gone);
}

Growth::~Growth() {
    qtHookData[kObjectMade] = 0;
    qtHookData[kObjectGone] = 0;
}

void Growth::measure() {
    QPixmapCache::clear();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    held_.push_back({objects, heap(), openFiles()});
}

std::string Growth::complaint() const {
    constexpr std::size_t kFewest = 8;
    if (held_.size() < kFewest) {
        return {};
    }
    const auto quarter = static_cast<std::ptrdiff_t>(held_.size() / 4);
    const auto least = [](auto first, auto last, auto Held::*what) {
        return (*std::min_element(first, last, [&](const Held& a, const Held& b) { return a.*what < b.*what; })).*what;
    };
    // What a life leaves for good is there in all that follow; how much is there for the moment differs from life to
    // life. So the least of the second quarter is compared with the least of the second half.
    const auto grown = [&](auto Held::*what) {
        const auto early = least(held_.begin() + quarter, held_.begin() + 2 * quarter, what);
        const auto late = least(held_.begin() + 2 * quarter, held_.end(), what);
        return static_cast<long>(late) - static_cast<long>(early);
    };
    constexpr long kMegabyte = 1L << 20;
    constexpr long kObjects = 5; // the toolkit itself keeps between 30 and 90, sometimes more and sometimes fewer
    const auto lives = static_cast<long>(quarter); // that lie between at least
    std::string all;
    if (grown(&Held::objects) >= kObjects * lives) {
        all += "objects of the toolkit stay: " + std::to_string(grown(&Held::objects)) + "\n";
    }
    // Some 0.7 MB stay with each life of six thousand events. A part of it is allocated by the toolkit's widgets, a
    // part by the driver manager; what they keep it for isn't known.
    if (grown(&Held::bytes) >= kMegabyte + lives * kMegabyte) {
        all += "memory stays: " + std::to_string(grown(&Held::bytes)) + " bytes\n";
    }
    if (grown(&Held::files) >= 4) {
        all += "files stay open: " + std::to_string(grown(&Held::files)) + "\n";
    }
    return all.empty() ? all : all + text();
}

std::string Growth::text() const {
    std::string all = "objects, bytes and files after each life:";
    for (const Held& held : held_) {
        all += " " + std::to_string(held.objects) + "/" + std::to_string(held.bytes) + "/" + std::to_string(held.files);
    }
    return all;
}

} // namespace monkey
