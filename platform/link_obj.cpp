#include "platform/link_obj.h"

namespace plenovia {

const TLinkObj* TLinkObj::GetLast() const {
  const TLinkObj* node = this;
  while (node->next_ != nullptr) node = node->next_;
  return node;
}

TLinkObj* TLinkObj::GetLast() {
  TLinkObj* node = this;
  while (node->next_ != nullptr) node = node->next_;
  return node;
}

void TLinkObj::DeleteRest() {
  // The way back is laid anew, as nothing promises that the prev links are set.
  TLinkObj* node = this;
  while (node->next_ != nullptr) {
    node->next_->prev_ = node;
    node = node->next_;
  }
  while (node != this) {
    TLinkObj* before = node->prev_;
    delete node;
    node = before;
  }
  next_ = nullptr;
}

void TLinkObj::Unlink() {
  if (next_ != nullptr) next_->prev_ = prev_;
  if (prev_ != nullptr) prev_->next_ = next_;
}

}  // namespace plenovia
