#include "map_surround/north_arrow.h"

CNorthArrowBase::CNorthArrowBase() { SetItemType(SurroundNorthArrow); }
