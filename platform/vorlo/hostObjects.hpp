#pragma once

namespace vorlo {

class VORClass;
class VORInterface;

/// A new host object of `cls` from the attached host language, standing for
/// no native object yet; the caller receives its one reference. Without a
/// language: ZELMAR:vorlo:NoHostLanguage.
VORInterface* newHostObject(VORClass& cls);

/// What a host language does when its object `object` goes: the binding to
/// the native object is forgotten, and then the class's deallocateInstance
/// runs with that native object (or null). What deallocateInstance throws
/// passes through.
void endHostObject(VORInterface& object);

}  // namespace vorlo
