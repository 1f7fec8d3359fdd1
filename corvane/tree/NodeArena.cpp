#include "corvane/tree/NodeArena.h"

#include <new>
#include <utility>

#include "corvane/scan/Assert.h"

namespace Ondo {

namespace {

/// Chunks lie at multiples of their size, so that a slot finds its chunk.
constexpr std::size_t chunkSize = 16 * 1024;

constinit thread_local NodeArena* current = nullptr;

constexpr bool isSanitized() {
#if defined(__SANITIZE_ADDRESS__)
    return true;
#elif defined(__has_feature)
    return __has_feature(address_sanitizer);
#else
    return false;
#endif
}

} // namespace

/// A stretch of slots of one size.
struct NodeArena::Chunk {
    struct Slot {
        Slot* next;
    };

    NodeArena* arena;
    std::size_t sizeClass;
    Chunk* previous = nullptr;
    Chunk* next = nullptr;
    Slot* freed = nullptr;
    std::byte* fresh; ///< the first slot that was never taken
    std::size_t liveCount = 0;

    Chunk(NodeArena* arena_, std::size_t sizeClass_) : arena(arena_), sizeClass(sizeClass_), fresh(begin()) {}

    std::byte* begin() {
        constexpr std::size_t headerSize = (sizeof(Chunk) + granularity - 1) / granularity * granularity;
        return reinterpret_cast<std::byte*>(this) + headerSize;
    }
    std::byte* end() { return reinterpret_cast<std::byte*>(this) + chunkSize; }
    std::size_t slotSize() const { return sizeClass * granularity; }
    bool isFull() { return !freed && static_cast<std::size_t>(end() - fresh) < slotSize(); }

    void* take() {
        ++liveCount;
        if (freed) return std::exchange(freed, freed->next);
        return std::exchange(fresh, fresh + slotSize());
    }
    void put(void* memory) {
        --liveCount;
        freed = new (memory) Slot{freed};
    }
    static Chunk* of(void* memory) {
        return reinterpret_cast<Chunk*>(reinterpret_cast<std::uintptr_t>(memory) & ~(chunkSize - 1));
    }
};

NodeArena::Scope::Scope(NodeArena& arena)
    : outer_(std::exchange(current, isSanitized() ? nullptr : &arena)) {}

NodeArena::Scope::~Scope() {
    current = outer_;
}

void NodeArena::Release::operator()(NodeArena* arena) const {
    arena->isReleased_ = true;
    if (arena->liveCount_ == 0) delete arena;
}

NodeArena::Owner NodeArena::make() {
    return Owner(new NodeArena);
}

NodeArena::~NodeArena() {
    for (Chunk* chunk : offered_)
        while (chunk)
            ::operator delete(std::exchange(chunk, chunk->next), std::align_val_t(chunkSize));
}

void* NodeArena::allocate(std::size_t size) {
    return current ? current->take((size + granularity - 1) / granularity) : nullptr;
}

void NodeArena::free(void* memory) {
    Chunk* const chunk = Chunk::of(memory);
    chunk->arena->put(chunk, memory);
}

void* NodeArena::take(std::size_t sizeClass) {
    CORVANE_ASSERT(sizeClass < classCount, "NodeArena");
    if (!offered_[sizeClass]) addChunk(sizeClass);
    Chunk* const chunk = offered_[sizeClass];
    void* const memory = chunk->take();
    ++liveCount_;
    if (chunk->isFull()) withdraw(chunk);
    return memory;
}

void NodeArena::put(Chunk* chunk, void* memory) {
    const bool wasFull = chunk->isFull();
    chunk->put(memory);
    if (wasFull) offer(chunk);
    // The last chunk of a size stays, so that typing does not take and give back one at every keystroke.
    const bool isOnly = offered_[chunk->sizeClass] == chunk && !chunk->next;
    if (chunk->liveCount == 0 && !isOnly) {
        withdraw(chunk);
        ::operator delete(chunk, std::align_val_t(chunkSize));
    }
    if (--liveCount_ == 0 && isReleased_) delete this;
}

void NodeArena::addChunk(std::size_t sizeClass) {
    offer(new (::operator new(chunkSize, std::align_val_t(chunkSize))) Chunk(this, sizeClass));
}

void NodeArena::offer(Chunk* chunk) {
    Chunk*& first = offered_[chunk->sizeClass];
    chunk->previous = nullptr;
    chunk->next = first;
    if (first) first->previous = chunk;
    first = chunk;
}

void NodeArena::withdraw(Chunk* chunk) {
    (chunk->previous ? chunk->previous->next : offered_[chunk->sizeClass]) = chunk->next;
    if (chunk->next) chunk->next->previous = chunk->previous;
    chunk->previous = chunk->next = nullptr;
}

} // namespace Ondo
