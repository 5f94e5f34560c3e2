#pragma once

#include "input.h"

/// Flat GDI+ functions that draw nothing: objects are tokens, and what is asked of GDI+
/// is answered from the fuzzer's input. They end the program when they are handed what is
/// no object, one of another kind or one that was deleted before, and when a turn is to
/// be by no number.
namespace fuzz::flat {

/// Thrown by the flat function after which a drawing has gone on for long enough, to see
/// no more of a scale bar of a thousand million divisions.
struct EnoughDrawn {};

/// The input that answers from now on. How many calls may follow, and which of them
/// fails, is of its making too.
void Begin(Input& input);

/// How many objects there are that nobody deleted.
int LiveObjects();

/// Whether the world transform is another than the identity.
bool IsTurned();

}  // namespace fuzz::flat
