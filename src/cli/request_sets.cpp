#include "cli/json_protocol.h"

namespace tessarondel {

// Every request set of the protocol; a request that no set registers answers
// protocol_error.
void RegisterAllRequests(RequestTable& table) {
    RegisterEngineRequests(table);
    RegisterBaseRequests(table);
    RegisterFunctionRequests(table);
}

}  // namespace tessarondel
