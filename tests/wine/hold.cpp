// Keeps the Wine server of a prefix alive: tells that it runs by making the file named first, then sleeps for the seconds named second.
#include <cstdio>
#include <cstdlib>

#include <windows.h>

int main(int argumentCount, char** arguments) {
  if (argumentCount != 3) {
    return 1;
  }
  std::FILE* ready = std::fopen(arguments[1], "w");
  if (ready == nullptr) {
    return 1;
  }
  std::fclose(ready);
  Sleep(static_cast<DWORD>(std::atoi(arguments[2])) * 1000);
  return 0;
}
