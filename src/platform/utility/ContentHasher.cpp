#include "platform/utility/ContentHasher.h"

#define XXH_INLINE_ALL // no library to be loaded at every start
#include <xxhash.h>

struct ContentHasher::State {
    XXH3_state_t xxh;
};

ContentHasher::ContentHasher() : state(std::make_unique<State>()) {
    XXH3_128bits_reset(&state->xxh);
}

ContentHasher::~ContentHasher() = default;

void ContentHasher::add(const char* piece, int size) {
    XXH3_128bits_update(&state->xxh, piece, size_t(size));
    bytes += size;
}

ContentHash ContentHasher::hash() const {
    const XXH128_hash_t hash = XXH3_128bits_digest(&state->xxh);
    return {bytes, hash.high64, hash.low64};
}
