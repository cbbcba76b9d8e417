#pragma once

#include "course/profile_form.h"

// The entries of the course form, and the files that it puts them in and takes them from.

/// The entries as they stand.
[[nodiscard]] CourseEntries entriesOf(const ProfileForm& form);

/// Puts entries into the form without reading any of them.
void showEntries(ProfileForm& form, const CourseEntries& entries);

/// Reads distance and elevations once, as after entries have been put in. Texts are not compared.
void readEntries(ProfileForm& form);

/// Lists the course files of the folder.
void listCourses(ProfileForm& form);

/// A click on the list: its name is to be retrieved.
void pickCourse(ProfileForm& form);

/// Command2: writes the course, in place of a file of that name.
void saveCourse(ProfileForm& form);

/// Command5: puts a file in place of the course; one that can't be read leaves it as it was.
/// Faults: as `redraw`.
void retrieveCourse(ProfileForm& form);

/// Lets a track be chosen, and makes a course of it.
/// Faults: as `redraw`.
void askForTrack(ProfileForm& form);
