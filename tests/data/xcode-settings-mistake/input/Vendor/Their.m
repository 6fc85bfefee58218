MyString(@"Left out", nil);
