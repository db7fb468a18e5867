#pragma once

// The entries by which a host loads the module: found with dlsym, so of C
// linkage.

extern "C" {
/// Registers the package zelmar.io.xml.dom; only the first call does anything.
void ModuleInitialize_paxorel_xml();
/// Does nothing: nothing is unregistered and no state is released.
void ModuleTerminate_paxorel_xml();
}

namespace paxorel::xml::mi {

/// Registers the package zelmar.io.xml.dom, whose 37 classes the platform
/// asks for when it first needs them.
void init_ZELMAR_IO_XML_DOM_Package();

}  // namespace paxorel::xml::mi
