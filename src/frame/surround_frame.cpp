#include "map_surround/frame.h"

#include <utility>

CSurroundFrame::CSurroundFrame(CSurroundFrame&& other) noexcept
    : CFrameBase(other), m_mapSurround(std::exchange(other.m_mapSurround, nullptr)) {}

CSurroundFrame& CSurroundFrame::operator=(CSurroundFrame&& other) noexcept {
    if (this != &other) {
        CFrameBase::operator=(other);
        delete m_mapSurround;
        m_mapSurround = std::exchange(other.m_mapSurround, nullptr);
    }
    return *this;
}

CSurroundFrame::~CSurroundFrame() {
    delete m_mapSurround;
    m_mapSurround = nullptr;
}

void CSurroundFrame::Draw(Gdiplus::Graphics* graphics, CPoint centre, double scale) {
    if (m_mapSurround != nullptr) {
        m_mapSurround->Draw(graphics, centre, scale);
    }
}
