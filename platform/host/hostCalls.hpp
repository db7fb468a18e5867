#pragma once

// Calls from native code into the host: methods of host objects, and the
// construction of host objects.

#include <host/HostArray.hpp>
#include <vorlo/InternedName.hpp>

namespace vorlo {
class VORClient;
}

/// Calls the method `method` of the host object in element 0 of inputs[0]
/// (of the class named `className`), the other inputs being its arguments;
/// its results go to `outputs`, owned by the caller. What the method raises
/// leaves as an exception. Without a host language:
/// ZELMAR:vorlo:NoHostLanguage.
void hostCallMethod(vorlo::InternedName className, vorlo::InternedName method, vorlo::VORClient* client,
                    int outputCount, HostArray** outputs, int inputCount, HostArray* const* inputs,
                    bool dispatchOnFirst);

/// A new host object of the class named `className`, made from `inputs` by
/// the class's constructor: for an enumeration, its value constructor (the
/// member of the value in inputs[0]). The caller owns the 1-by-1 result.
HostArray* hostConstructObjectWithClient(vorlo::InternedName className, int inputCount, HostArray* const* inputs,
                                         vorlo::VORClient* client);
