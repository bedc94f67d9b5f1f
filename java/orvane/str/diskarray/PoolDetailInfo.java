package orvane.str.diskarray;

public class PoolDetailInfo {
}
