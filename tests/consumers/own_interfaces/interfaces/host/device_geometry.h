#pragma once

/// What a point is in the system's own headers.
struct DevicePoint {
    int x;
    int y;
};

/// A class over the plain structure.
class CPoint : public DevicePoint {
public:
    CPoint() { x = y = 0; }
    CPoint(int pointX, int pointY) {
        x = pointX;
        y = pointY;
    }
    void Offset(int dx, int dy) {
        x += dx;
        y += dy;
    }
};

struct DeviceRect {
    int left;
    int top;
    int right;
    int bottom;
};

class CRect : public DeviceRect {
public:
    CRect() { left = top = right = bottom = 0; }
    CRect(int rectLeft, int rectTop, int rectRight, int rectBottom) {
        left = rectLeft;
        top = rectTop;
        right = rectRight;
        bottom = rectBottom;
    }
    int Width() { return right - left; }
};
