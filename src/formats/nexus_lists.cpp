#include "formats/nexus_lists.h"

#include "core/text_case.h"
#include "formats/nexus_errors.h"

namespace ovelt {

namespace {

struct Piece {
  enum Kind { kValue, kDash, kStep } kind = kValue;
  std::string text;
  bool quoted = false;
};

bool AllDigits(const std::string& text) {
  if (text.empty()) return false;
  for (char c : text) {
    if (!IsAsciiDigit(c)) return false;
  }
  return true;
}

class ListReader {
 public:
  ListReader(const NexusListContext& context, int error_code)
      : context_(context), error_(error_code) {}

  // Cuts the tokens into values, dashes and step marks. A word that is a known name stays
  // whole even when it holds a "-".
  void Cut(const std::vector<NexusToken>& args, size_t from, size_t to) {
    for (size_t i = from; i < to && i < args.size(); ++i) {
      const NexusToken& token = args[i];
      if (token.type == NexusToken::kQuoted) {
        pieces_.push_back({Piece::kValue, token.text, true});
      } else if (token.is('\\')) {
        pieces_.push_back({Piece::kStep, "\\", false});
      } else if (token.type != NexusToken::kWord) {
        throw NexusFault(error_);
      } else if (!AllDigits(token.text) && context_.lookup &&
                 context_.lookup(NexusNameKey(NexusNameText(token)))) {
        pieces_.push_back({Piece::kValue, token.text, false});
      } else {
        size_t start = 0;
        const std::string& word = token.text;
        for (size_t k = 0; k <= word.size(); ++k) {
          if (k == word.size() || word[k] == '-') {
            if (k > start) pieces_.push_back({Piece::kValue, word.substr(start, k - start), false});
            if (k < word.size()) pieces_.push_back({Piece::kDash, "-", false});
            start = k + 1;
          }
        }
      }
    }
  }

  std::vector<int32_t> Read() {
    std::vector<int32_t> members;
    // Each member once, in the order of first mention.
    std::vector<bool> seen(static_cast<size_t>(context_.last > 0 ? context_.last : 0) + 1, false);
    auto add = [&](int32_t n) {
      if (seen[static_cast<size_t>(n)]) return;
      seen[static_cast<size_t>(n)] = true;
      members.push_back(n);
    };
    size_t i = 0;
    while (i < pieces_.size()) {
      const Piece& piece = pieces_[i];
      if (piece.kind != Piece::kValue) throw NexusFault(error_);
      if (!piece.quoted && ToUpperAscii(piece.text) == "ALL") {
        for (int32_t n = 1; n <= context_.last; ++n) add(n);
        ++i;
        continue;
      }
      if (i + 1 < pieces_.size() && pieces_[i + 1].kind == Piece::kDash) {
        if (i + 2 >= pieces_.size() || pieces_[i + 2].kind != Piece::kValue) throw NexusFault(error_);
        const int32_t first = Single(pieces_[i]);
        const int32_t last = Single(pieces_[i + 2]);
        i += 3;
        int32_t step = 1;
        if (i < pieces_.size() && pieces_[i].kind == Piece::kStep) {
          if (i + 1 >= pieces_.size() || pieces_[i + 1].kind != Piece::kValue ||
              !AllDigits(pieces_[i + 1].text))
            throw NexusFault(error_);
          step = Number(pieces_[i + 1].text);
          if (step < 1) throw NexusFault(error_);
          i += 2;
        }
        if (first > last) throw NexusFault(error_);
        for (int64_t n = first; n <= last; n += step) add(static_cast<int32_t>(n));
        continue;
      }
      for (int32_t n : Values(piece)) add(n);
      ++i;
    }
    return members;
  }

 private:
  int32_t Number(const std::string& digits) const {
    int64_t value = 0;
    for (char c : digits) {
      value = value * 10 + (c - '0');
      if (value > context_.last) throw NexusFault(error_);
    }
    return static_cast<int32_t>(value);
  }

  // The members a value names: a number, ".", or a name.
  std::vector<int32_t> Values(const Piece& piece) const {
    if (!piece.quoted && AllDigits(piece.text)) {
      const int32_t n = Number(piece.text);
      if (n < 1) throw NexusFault(error_);
      return {n};
    }
    if (!piece.quoted && piece.text == ".") {
      if (context_.last < 1) throw NexusFault(error_);
      return {context_.last};
    }
    NexusToken token;
    token.type = piece.quoted ? NexusToken::kQuoted : NexusToken::kWord;
    token.text = piece.text;
    if (context_.lookup) {
      if (auto found = context_.lookup(NexusNameKey(NexusNameText(token)))) return *found;
    }
    throw NexusFault(error_);
  }

  // The one member that the end of a range names.
  int32_t Single(const Piece& piece) const {
    const std::vector<int32_t> values = Values(piece);
    if (values.size() != 1) throw NexusFault(error_);
    return values[0];
  }

  const NexusListContext& context_;
  int error_;
  std::vector<Piece> pieces_;
};

}  // namespace

std::vector<int32_t> ReadNexusList(const std::vector<NexusToken>& args, size_t from, size_t to,
                                   const NexusListContext& context, int error_code) {
  ListReader reader(context, error_code);
  reader.Cut(args, from, to);
  return reader.Read();
}

}  // namespace ovelt
