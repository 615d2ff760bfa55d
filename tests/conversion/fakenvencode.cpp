// Stands in for NVIDIA's encode library in the GPU probe tests. Built three
// ways: whole, without one entry point, and with a failing version query.
#include <cstdint>

extern "C" {

__attribute__((visibility("default"))) int NvEncodeAPIGetMaxSupportedVersion(std::uint32_t *version)
{
#ifdef FAKE_VERSION_FAILS
    (void)version;
    return 15; // "no device"
#else
    *version = (12u << 4) | 1u;
    return 0;
#endif
}

#ifndef FAKE_MISSING_EXPORT
__attribute__((visibility("default"))) int NvEncodeAPICreateInstance(void *functionList)
{
    (void)functionList;
    return 0;
}
#endif
}
