#pragma once

#include <stdexcept>
#include <string>

namespace tendo {

/// An error with one of the platform's classic numbers. Thrown where it arises, caught once in the
/// procedure that shows the message.
class RuntimeError : public std::runtime_error {
  public:
    RuntimeError(int number, const std::string& description)
        : std::runtime_error(description), number_(number) {}

    int Number() const { return number_; }
    std::string Description() const { return what(); }

  private:
    int number_;
};

/// The classic numbers in use. The descriptions that go with them: `ErrorDescription`.
namespace error_number {
inline constexpr int Overflow = 6;
inline constexpr int OutOfMemory = 7;
inline constexpr int SubscriptOutOfRange = 9;
inline constexpr int DivisionByZero = 11;
inline constexpr int TypeMismatch = 13;
inline constexpr int OutOfStackSpace = 28;
inline constexpr int FileNotFound = 53;
inline constexpr int DeviceError = 57;  // the disk failed to read or write
inline constexpr int FileAlreadyExists = 58;
inline constexpr int DiskFull = 61;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int NoCurrentRecord = 3021;
inline constexpr int CouldNotFindFile = 3024;
inline constexpr int EditNotStarted = 3020;  // Update without AddNew or Edit
inline constexpr int PasswordNotValid = 3031;
inline constexpr int SyntaxErrorInQuery = 3075;
inline constexpr int SyntaxErrorInCriteria = 3077;
inline constexpr int TableNotFound = 3078;  // "cannot find the input table or query"
inline constexpr int FieldTooSmall = 3163;  // "The field is too small to accept the amount of data"
inline constexpr int ItemNotFound = 3265;   // "Item not found in this collection."
inline constexpr int UnrecognizedFormat = 3343;
inline constexpr int TooFewParameters = 3061;
inline constexpr int DuplicateKey = 3022;
inline constexpr int ReadOnlyDatabase = 3027;
inline constexpr int FieldNotZeroLength = 3315;
}  // namespace error_number

/// The usual description of a number that needs no further detail ("Division by zero").
std::string ErrorDescription(int number);

/// Throws the RuntimeError of a number with its usual description.
[[noreturn]] void ThrowError(int number);

}  // namespace tendo
