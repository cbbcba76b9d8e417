#include "forms/files.h"

#include <fcntl.h>

int openToWrite(const char* path, int flags)
{
    return ::open(path, flags, 0666);
}
