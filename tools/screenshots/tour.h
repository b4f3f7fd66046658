// SPDX-FileCopyrightText: The Stemwright authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/frmalbum.h"
#include "camera.h"

/// The way through all windows that ends with a picture of each. It works the program by the names of its controls, as
/// a hand would. Stands on the desktop application.
namespace stemwright::screenshots
{

class Tour
{
public:
    /// `window` is shown and has nothing open yet; `tree` is the GEDCOM file to import on the way.
    Tour(frmAlbum& window, Environment& environment, Camera& camera, QString tree);

    /// The windows before a family file is open.
    void start();
    /// The windows of `familyFile`, which is written to.
    void album(const QString& familyFile);

private:
    void lists();
    void record();
    void queries();
    void people();
    void files();
    void oldAlbum();
    void import();
    void menus();
    void wizard();
    void webPages();
    void items(QWidget& wizard);
    void build(QWidget& wizard);

    void trigger(const char* action);
    void press(QWidget& window, const char* button);

    template <typename Control>
    Control& control(QWidget& window, const char* name)
    {
        auto* found = window.findChild<Control*>(QLatin1StringView(name));
        if (found == nullptr) {
            qFatal("no control %s in %s", name, qUtf8Printable(window.objectName()));
        }
        return *found;
    }

    frmAlbum& m_window;
    Environment& m_environment;
    Camera& m_camera;
    QString m_tree;
};

} // namespace stemwright::screenshots
