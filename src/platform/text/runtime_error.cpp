#include "platform/text/runtime_error.h"

namespace tendo {

namespace {

struct Description {
    int number;
    const char* text;
};

constexpr Description Descriptions[] = {
    {error_number::Overflow, "Overflow"},
    {error_number::OutOfMemory, "Out of memory"},
    {error_number::SubscriptOutOfRange, "Subscript out of range"},
    {error_number::DivisionByZero, "Division by zero"},
    {error_number::TypeMismatch, "Type mismatch"},
    {error_number::OutOfStackSpace, "Out of stack space"},
    {error_number::FileNotFound, "File not found"},
    {error_number::DeviceError, "Device I/O error"},
    {error_number::FileAlreadyExists, "File already exists"},
    {error_number::DiskFull, "Disk full"},
    {error_number::PermissionDenied, "Permission denied"},
    {error_number::PathFileAccess, "Path/File access error"},
    {error_number::PathNotFound, "Path not found"},
    {error_number::EditNotStarted, "Update or CancelUpdate without AddNew or Edit."},
    {error_number::NoCurrentRecord, "No current record."},
    {error_number::DuplicateKey,
     "The changes you requested to the table were not successful because they would create "
     "duplicate "
     "values in the index, primary key, or relationship."},
    {error_number::CouldNotFindFile, "Could not find file."},
    {error_number::ReadOnlyDatabase, "Cannot update. Database or object is read-only."},
    {error_number::PasswordNotValid, "Not a valid password."},
    {error_number::TooFewParameters, "Too few parameters."},
    {error_number::SyntaxErrorInQuery, "Syntax error in query expression."},
    {error_number::SyntaxErrorInCriteria, "Syntax error in criteria expression."},
    {error_number::TableNotFound, "Cannot find the input table or query."},
    {error_number::FieldTooSmall,
     "The field is too small to accept the amount of data you attempted to add. Try inserting or "
     "pasting less data."},
    {error_number::ItemNotFound, "Item not found in this collection."},
    {error_number::FieldNotZeroLength, "Field cannot be a zero-length string."},
    {error_number::UnrecognizedFormat, "Unrecognized database format."},
};

}  // namespace

std::string ErrorDescription(int number) {
    for (const Description& description : Descriptions) {
        if (description.number == number) return description.text;
    }
    return "Application-defined or object-defined error";
}

void ThrowError(int number) {
    throw RuntimeError(number, ErrorDescription(number));
}

}  // namespace tendo
