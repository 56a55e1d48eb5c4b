// SPDX-License-Identifier: MIT
#include "state/neighbours.h"

#include <vector>

namespace Neighbours {

namespace {
std::vector<AnyCall*>& Calls() {
    static std::vector<AnyCall*> calls;
    return calls;
}
} // namespace

AnyCall::AnyCall(const char* name) : m_name(name) { Calls().push_back(this); }

QStringList Unanswered() {
    QStringList names;
    for (const AnyCall* call : Calls()) {
        if (!call->IsAnswered()) names << QString::fromLatin1(call->Name());
    }
    return names;
}

void Reset() {
    for (AnyCall* call : Calls()) call->Unwire();
}

} // namespace Neighbours
