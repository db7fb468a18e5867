#pragma once

// The profile for untrusted input that README recommends, and the attack
// documents that are made rather than kept in tests/attacks: the large ones,
// smaller ones that show how an attack grows, and the ones that name a path
// or a port of the run.

#include <paxorel/xml/parse/ParserConfiguration.hpp>

#include <cstddef>
#include <string>

namespace testing_support::attacks {

/// No external entity, DTD or inclusion is read, and a parse expands at most
/// `limit` entities.
inline void applySafeProfile(paxorel::xml::ParserConfiguration& options, std::size_t limit) {
  options.setDisableDefaultEntityResolution(true);
  options.setLoadExternalDTD(false);
  options.setDoXInclude(false);
  options.setEntityExpansionLimit(limit);
}

/// Where the top entity of laughs() is referenced.
enum class Reference { content, attributeDefault };

/// `levels` levels of entities, each ten references to the one below, over
/// "lol": 10^levels of them. The kept billion_laughs.xml has nine levels,
/// referenced from the content; attribute_default_laughs.xml references them
/// from the default of an attribute declaration.
inline std::string laughs(int levels, Reference where) {
  std::string text = "<!DOCTYPE lolz [<!ENTITY lol0 'lol'>";
  for (int level = 1; level <= levels; ++level) {
    text += "<!ENTITY lol" + std::to_string(level) + " '";
    for (int i = 0; i < 10; ++i) text += "&lol" + std::to_string(level - 1) + ";";
    text += "'>";
  }
  const std::string top = "&lol" + std::to_string(levels) + ";";
  if (where == Reference::content) return text + "]><lolz>" + top + "</lolz>";
  return text + "<!ATTLIST lolz laughs CDATA '" + top + "'>]><lolz/>";
}

/// One entity of `length` characters, referenced `references` times: the
/// document grows with the sum of the two, its expansion with the product.
inline std::string quadraticBlowup(std::size_t length, std::size_t references) {
  std::string text = "<!DOCTYPE r [<!ENTITY a '" + std::string(length, 'a') + "'>]><r>";
  for (std::size_t i = 0; i < references; ++i) text += "&a;";
  return text + "</r>";
}

/// The quadratic blowup that README measures: 100 KB that expand to 310 million characters.
inline std::string quadraticBlowup() { return quadraticBlowup(10'000, 31'000); }

/// An external general entity with the system identifier `systemId`, referenced from the content.
inline std::string externalEntity(const std::string& systemId) {
  return "<!DOCTYPE r [<!ENTITY secret SYSTEM '" + systemId + "'>]><r>&secret;</r>";
}

/// A document whose external DTD has the system identifier `systemId`.
inline std::string externalDtd(const std::string& systemId) { return "<!DOCTYPE r SYSTEM '" + systemId + "'><r/>"; }

}  // namespace testing_support::attacks
