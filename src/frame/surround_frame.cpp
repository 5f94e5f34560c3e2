#include "map_surround/frame.h"

CSurroundFrame::~CSurroundFrame() {
    delete m_mapSurround;
    m_mapSurround = nullptr;
}

void CSurroundFrame::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    if (m_mapSurround != nullptr) {
        m_mapSurround->Draw(graphics, centre, scale);
    }
}
