#include "map_surround/element.h"

CMapSurround::~CMapSurround() = default;

void CMapSurround::ResetAspectRatio() {}
