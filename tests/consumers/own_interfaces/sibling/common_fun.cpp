#include "sibling/common_fun.h"

#include <cstdio>

void CClassifyDisplayItem::GetColor(unsigned char& red, unsigned char& green,
                                    unsigned char& blue, unsigned char& alpha) {
    red = static_cast<unsigned char>(m_rgb >> 16);
    green = static_cast<unsigned char>(m_rgb >> 8);
    blue = static_cast<unsigned char>(m_rgb);
    alpha = 255;
}

std::wstring CommonFun::double2wstring(double value, int digits) {
    char text[400];
    const int length = std::snprintf(text, sizeof text, "%.*f", digits, value);
    return std::wstring(text, text + length);
}

std::wstring CommonFun::int2wstring(int value) { return std::to_wstring(value); }

std::wstring CommonFun::Trim(std::wstring text) {
    return text.substr(text.find_first_not_of(L' '));
}
