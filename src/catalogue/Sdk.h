#pragma once

/// Whether an instance of this tool already runs for this user: non-zero when one does, whatever path it was started
/// from. With `bringToFront` its window also comes to the front. An instance that crashed or was killed never counts.
/// 0 makes this process the running instance until it ends.
int instance_is_run(const char* executablePath, bool bringToFront);

/// The angle `*value` as the parameter record holds it, in decimal degrees.
double Radian2Angle(double* value);
