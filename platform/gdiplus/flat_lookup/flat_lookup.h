#pragma once

namespace map_surround {

/// The address of a flat GDI+ function in the system's GDI+, even if the program defines
/// a function of that name itself. Ends the program with a message if there is none: a
/// test that cannot forward its calls tests nothing.
void* FlatFunction(const char* name);

}  // namespace map_surround
