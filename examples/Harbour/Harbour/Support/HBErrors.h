#import <Foundation/Foundation.h>

NSString *HBErrorText(NSInteger code);
