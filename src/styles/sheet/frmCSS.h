// The style sheet builder: styles from lists, gathered into a sheet, which goes into the document or a file.
#pragma once

#include "styles/sheet/StylePreview.h"

#include <memory>
#include <QDialog>

class ElementList;
class Frame;
class PropertyLists;

namespace Ui {
class frmCSS;
}

/// All it knows is what its controls hold, and it goes with the form.
class frmCSS final : public QDialog {
    Q_OBJECT

  public:
    explicit frmCSS(Frame& frame);
    ~frmCSS() override;

    void reject() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    bool event(QEvent* event) override;
    /// The toolbar's icons go where they would push buttons out of sight; their words stay.
    void resizeEvent(QResizeEvent* event) override;

  private:
    void WireLists();
    void WireToolbar();
    /// Lets a button of the toolbar be reached and pressed by keys.
    void LetKeysReach(QWidget& button);
    void Form_Load();
    void PlaceOnScreen();
    void Unload();

    /// The declarations of the style being built.
    QStringList Declarations() const;
    QString BuiltRule() const;
    void DisplayCSS();
    void AddDeclaration(const QString& property, const QString& value);
    /// Removes the selected line. Delete and Enter do it as well.
    void ListCSS_DblClick();
    void cmdAddSheet_Click();
    void mnuClearAll_Click();
    void Save_Click();
    void Header_Click();
    void Location_Click();
    void Import_Click();

    Frame& frame_;
    StylePreview preview_;
    std::unique_ptr<Ui::frmCSS> ui_;
    ElementList* elements_;
    PropertyLists* properties_;
    int widthWithIcons_ = 0; ///< of the toolbar, in pixels
};
