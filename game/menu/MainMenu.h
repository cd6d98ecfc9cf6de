#pragma once

/// The main menu. Until there is one, a new game begins at once.
void createMenu();
