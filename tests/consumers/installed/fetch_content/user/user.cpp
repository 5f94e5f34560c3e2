bool DrawTitle(const wchar_t* file);

int main() { return DrawTitle(L"title.png") ? 0 : 1; }
