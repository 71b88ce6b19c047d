/* A host that loads the library by its path and asks for the width of picture files: alone library expected file... */
#include <dlfcn.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>

int main(int count, char** words) {
  void* library = dlopen(words[1], RTLD_NOW);
  if (!library) return fprintf(stderr, "%s\n", dlerror()), 1;
  int32_t (*head)(const void*, int32_t, int32_t*, int32_t*) =
      (int32_t(*)(const void*, int32_t, int32_t*, int32_t*))dlsym(library, "DecodeImageHead");
  for (int i = 3; i < count; ++i) {
    static unsigned char bytes[1 << 16];
    FILE* file = fopen(words[i], "rb");
    const size_t size = file ? fread(bytes, 1, sizeof bytes, file) : 0;
    int32_t width = -1, height = -1;
    if (!size || head(bytes, (int32_t)size, &width, &height) != 0 || width != atoi(words[2]))
      return fprintf(stderr, "%s: width %d, not %s\n", words[i], width, words[2]), 1;
    fclose(file);
  }
  return 0;
}
