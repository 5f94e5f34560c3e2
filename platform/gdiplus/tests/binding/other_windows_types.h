#pragma once

// Windows' types as ODBC's <sqlext.h> declares them outside Windows, some unlike ours.
#define BOOL int
#define TRUE 1
#define FALSE 0
typedef unsigned char BYTE;
typedef unsigned short WCHAR;
typedef unsigned long ULONG;
typedef struct {
    unsigned long Data1;
    unsigned short Data2;
    unsigned short Data3;
    unsigned char Data4[8];
} GUID;
