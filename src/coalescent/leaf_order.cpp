#include "coalescent/leaf_order.h"

namespace ovelt {

void LeafOrder::Allocate(int32_t n) {
  const auto nodes = static_cast<size_t>(2 * n - 1);
  Order.assign(static_cast<size_t>(n), 0);
  Start.assign(nodes, 0);
  Size.assign(nodes, 0);
  Head.assign(nodes, 0);
  Tail.assign(nodes, 0);
  Next.assign(static_cast<size_t>(n), -1);
}

void LeafOrder::Build(const Genealogy& g) {
  for (int32_t s = 0; s < g.n; ++s) {
    const auto i = static_cast<size_t>(s);
    Head[i] = Tail[i] = s;
    Next[i] = -1;
    Size[i] = 1;
  }
  for (int32_t v = g.n; v <= g.Root(); ++v) {
    const auto i = static_cast<size_t>(v);
    const auto a = static_cast<size_t>(g.FirstChild[i]);
    const auto b = static_cast<size_t>(g.SecondChild[i]);
    Next[static_cast<size_t>(Tail[a])] = Head[b];
    Head[i] = Head[a];
    Tail[i] = Tail[b];
    Size[i] = Size[a] + Size[b];
  }
  // Flatten the root's list; each node's leaves begin where its head sits.
  std::vector<int32_t>& position = Tail;  // the tails are no longer needed
  int32_t at = 0;
  for (int32_t s = Head[static_cast<size_t>(g.Root())]; s >= 0; s = Next[static_cast<size_t>(s)]) {
    Order[static_cast<size_t>(at)] = static_cast<int16_t>(s);
    position[static_cast<size_t>(s)] = at++;
  }
  for (int32_t v = 0; v <= g.Root(); ++v)
    Start[static_cast<size_t>(v)] = position[static_cast<size_t>(Head[static_cast<size_t>(v)])];
}

}  // namespace ovelt
