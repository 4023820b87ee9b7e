// Any bytes from the network are read as messages, logins and calls, or refused.

#include "peer/Login.h"
#include "peer/Packets.h"
#include "peer/Procedures.h"

namespace {

void read(const peer::Message& message) {
    peer::ByteReader in(message.body);
    if (message.type == peer::PacketType::Login) {
        peer::readLogin(message.body);
    }
    if (message.type == peer::PacketType::PreLogin) {
        peer::answerPreLogin(message.body);
    }
    if (message.type == peer::PacketType::Batch) {
        in.ucs2(in.left() / 2);
    }
    if (message.type == peer::PacketType::Rpc) {
        peer::PreparedTexts prepared;
        for (const peer::ProcedureCall& call : peer::readProcedureCalls(in)) {
            peer::procedureText(call, prepared);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        peer::PacketReader reader;
        reader.feed({data, size});
        while (const auto message = reader.next()) {
            read(*message);
        }
    } catch (const peer::ProtocolError&) {
        return 0;
    } catch (const engine::Error&) {
        return 0;
    }
    return 0;
}
