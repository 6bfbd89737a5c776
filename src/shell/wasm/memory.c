// Copying and filling memory. The instruction for it begins slowly, since the browser leaves its own code for it, and
// most of what the engine copies is a short text; the C library's loops are slow for what is long. So: a loop for the
// short, the instruction for the rest.
#include <stddef.h>
#include <stdint.h>

enum { shortest = 64 };  // bytes from which on the instruction is worth it

void* memcpy(void* to, const void* from, size_t size) {
  if (size >= shortest) return __builtin_memcpy(to, from, size);
  char* out = to;
  const char* in = from;
  for (; size >= 8; size -= 8, in += 8, out += 8) __builtin_memcpy(out, in, 8);
  for (; size > 0; --size) *out++ = *in++;
  return to;
}

void* memset(void* to, int byte, size_t size) {
  if (size >= shortest) return __builtin_memset(to, byte, size);
  char* out = to;
  for (; size > 0; --size) *out++ = (char)byte;
  return to;
}

void* memmove(void* to, const void* from, size_t size) {
  return (uintptr_t)to - (uintptr_t)from >= size ? memcpy(to, from, size) : __builtin_memmove(to, from, size);
}
