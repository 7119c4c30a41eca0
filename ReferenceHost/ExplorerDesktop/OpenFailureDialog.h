#pragma once

#include <QMessageBox>
#include <optional>

namespace aec::desktop
{

// Tells the user that a project file cannot be opened: which file, where the reading stopped
// (line and column, when the file is not even JSON), and the reader's whole explanation under
// the details.
class COpenFailureDialog final : public QMessageBox
{
    Q_OBJECT

public:
    struct Position
    {
        int line;
        int column;
    };

    COpenFailureDialog(const QString& path, const QString& failure, QWidget* parent = nullptr);
    ~COpenFailureDialog() override;

    // Where the JSON reader stopped, as its messages say ("... at line 3, column 14: ...").
    static std::optional<Position> stopPosition(const QString& failure);
};

} // namespace aec::desktop
