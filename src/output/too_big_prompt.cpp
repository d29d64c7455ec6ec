#include "output/too_big_prompt.h"

#include "output/format_mask.h"

namespace ovelt {
namespace {

struct PromptWords {
  const char* Opening;
  const char* SaveOnFile;
  const char* SaveOnAnotherFile;
};

std::string Question(const PromptWords& words, int64_t rows, const std::string& session_file_name) {
  std::string text = words.Opening + StrNum(rows) + " rows !!!\n";
  if (session_file_name.empty()) {
    text += words.SaveOnFile;
  } else {
    text += "The current output will not be saved on file: " + session_file_name + "\n" +
            words.SaveOnAnotherFile;
  }
  return text + "\nYou will need about " + StrNum(StreamedKilobytes(rows)) + " kb. of disk space";
}

}  // namespace

std::string TooBigQuestion(int64_t rows, const std::string& session_file_name) {
  static constexpr PromptWords kWords = {
      "Output too big to be displayed on the screen. There are ",
      "Do you want to save the output on a file ?",
      "Do you want to save the output on another output file ?"};
  return Question(kWords, rows, session_file_name);
}

std::string TooBigPairsQuestion(int64_t rows, const std::string& session_file_name) {
  static constexpr PromptWords kWords = {
      "The number of pairwise comparisons is too big to be displayed on the screen. There are ",
      "Do you want to save this information on a file ?  ",
      "Do you want to save this information on another output file ?"};
  return Question(kWords, rows, session_file_name);
}

std::string PrintFinalOnlyQuestion(int64_t rows) {
  return std::string("Output too big. There are ") + StrNum(rows) +
         " rows of data !!!\nDo you want to print only the final results?";
}

}  // namespace ovelt
