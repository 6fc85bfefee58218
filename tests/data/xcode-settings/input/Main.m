MyString(@"Mine", @"of my own");
MyTable(@"Theirs", @"Other", nil);
