NSString *MyString(NSString *key, NSString *comment);
MyString(@"Key 0", @"Comment");
MyString(@"Key 1", @"Comment");
MyString(@"Key 2", @"Comment");
MyString(@"Key 3", @"Comment");
MyString(@"Key 4", @"Comment");
NSLog(@"Key 1");
