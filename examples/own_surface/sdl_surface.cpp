// A title on an SDL surface, between two drawings of SDL's own.

#include <SDL.h>

#include "map_surround/kit/gdiplus_session.h"
#include "map_surround/map_surround.h"

static void DrawTitle(SDL_Surface* surface) {
    SDL_LockSurface(surface);
    {
        Gdiplus::Bitmap bitmap(surface->w, surface->h, surface->pitch,
                               PixelFormat32bppRGB, static_cast<BYTE*>(surface->pixels));
        Gdiplus::Graphics graphics(&bitmap);
        CMapTitle title;
        title.SetFontValue(L"Olinda");
        title.SetFontStyle(L"Arial");
        title.SetFontSize(40.0);
        title.ResetAspectRatio();
        title.Draw(&graphics, CPoint(surface->w / 2, surface->h / 2), 1.0);
        graphics.Flush();
    }
    SDL_UnlockSurface(surface);
}

int main(int, char**) {
    const map_surround::kit::GdiplusSession session;
    SDL_Surface* const surface =
        SDL_CreateRGBSurfaceWithFormat(0, 320, 120, 32, SDL_PIXELFORMAT_RGB888);
    SDL_FillRect(surface, nullptr, SDL_MapRGB(surface->format, 0xA8, 0xCF, 0xB9));
    DrawTitle(surface);
    const SDL_Rect line = {0, 110, 320, 4};
    SDL_FillRect(surface, &line, SDL_MapRGB(surface->format, 0xCC, 0x33, 0x1A));
    const int failed = SDL_SaveBMP(surface, "title.bmp");
    SDL_FreeSurface(surface);
    return failed == 0 ? 0 : 1;
}
