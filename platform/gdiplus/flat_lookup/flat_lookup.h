#pragma once

namespace map_surround {

/// The address of a flat GDI+ function as the system's GDI+ defines it, also where the
/// running program defines a function of that name itself. Ends the program with a
/// message when there is none: a test that cannot forward its calls tests nothing.
void* FlatFunction(const char* name);

}  // namespace map_surround
