// Whatever the monkey types as a server's name, no name is looked up and no other machine is spoken to.

#include <cstring>
#include <dlfcn.h>
#include <netdb.h>

extern "C" __attribute__((visibility("default"))) int getaddrinfo(const char* node, const char* service,
                                                                  const addrinfo* hints, addrinfo** found) {
    using Function = int (*)(const char*, const char*, const addrinfo*, addrinfo**);
    static const auto real = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, "getaddrinfo"));
    if (node != nullptr && std::strncmp(node, "127.", 4) != 0) {
        return EAI_NONAME;
    }
    return real(node, service, hints, found);
}
