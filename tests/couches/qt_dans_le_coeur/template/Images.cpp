#include <QImage>
