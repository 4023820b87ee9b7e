#pragma once

#include "engine/store/Instance.h"
#include "peer/Client.h"
#include "peer/Heard.h"
#include "peer/Wire.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace peer {

constexpr std::uint32_t kVersion71 = 0x71000001;
constexpr std::uint32_t kVersion72 = 0x72090002;

/// A client that sends the given bytes and then disconnects. An attention among them it sends while the answer to the
/// request before it is made, once the server has looked for it so many times; an impatient client sends everything so.
class Script : public Channel {
public:
    explicit Script(std::vector<Bytes> sent, int looksBeforeAttention = 0, bool impatient = false)
        : sent_(std::move(sent)), looks_(looksBeforeAttention), impatient_(impatient) {}
    Bytes read() override { return place_ < sent_.size() ? sent_[place_++] : Bytes(); }
    void write(std::span<const std::uint8_t> bytes) override { got.insert(got.end(), bytes.begin(), bytes.end()); }
    bool waiting() override {
        const bool attention = place_ < sent_.size() && !sent_[place_].empty() && sent_[place_][0] == 6;
        return (attention && looks_-- <= 0) || (impatient_ && place_ < sent_.size());
    }
    bool heard(const std::string& text) const {
        const Bytes wide = ByteWriter().ucs2(text).bytes;
        return std::search(got.begin(), got.end(), wide.begin(), wide.end()) != got.end();
    }

    Bytes got;

private:
    std::vector<Bytes> sent_;
    std::size_t place_ = 0;
    int looks_;
    bool impatient_;
};

using Lines = std::vector<std::string>;

class Conversation : public ::testing::Test {
protected:
    Conversation() {
        instance->addLogin("sa", "segreta");
        instance->createDatabase("prova", "", "");
    }

    Bytes hello(std::uint32_t version = kVersion71, const std::string& database = "prova") const {
        return wire::packet(16, 1, wire::login("sa", "segreta", database, version));
    }
    Script served(std::vector<Bytes> sent, int looksBeforeAttention = 0) const {
        Script script(std::move(sent), looksBeforeAttention);
        Client(script, instance).serve();
        return script;
    }
    /// The messages after the login of a client of 7.1.
    std::vector<Lines> answers(std::vector<Bytes> requests, int looksBeforeAttention = 0) const {
        return answersTo(kVersion71, std::move(requests), looksBeforeAttention);
    }
    std::vector<Lines> answersTo(std::uint32_t version, std::vector<Bytes> requests,
                                 int looksBeforeAttention = 0) const {
        requests.insert(requests.begin(), hello(version));
        auto all = heardMessages(served(std::move(requests), looksBeforeAttention).got, version);
        all.erase(all.begin());
        return all;
    }
    /// The one answer to one batch.
    Lines answer(const std::string& text) const { return answers({wire::batch(text)}).at(0); }

    support::TemporaryFolder folder;
    std::shared_ptr<engine::Instance> instance = engine::Instance::create(
        folder.path() / "server", {[this](std::string_view path) { return folder.path() / path; }});
};

} // namespace peer
